#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/URLCoding.h>
#include <Configuration/VariableKeyWrapper.h>

#include <variant>

namespace velmar {

/// The kinds of monitors; the names to use are those within MonitorItem.
namespace MonitorItems {

enum class TypeIdentifier { application, file };

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>(
        {{TypeIdentifier::application, "Application"}, {TypeIdentifier::file, "File"}});
}

/// The key that every monitor begins with.
struct MonitorItemProtocol {
    using IsKeyGroup = void;

    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: "IsMandatory" decides what counts.
};

/// An application whose installation is followed.
struct App {
    static constexpr std::string_view typeName = "MonitorItem.App";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::application;

    /// Where its state comes from.
    enum class Installer { system, jamf, airwatch, managed };
    friend constexpr auto casesOf(Installer) {
        return std::to_array<EnumCase<Installer>>({{Installer::system, "System"},
                                                   {Installer::jamf, "Jamf"},
                                                   {Installer::airwatch, "AirWatch"},
                                                   {Installer::managed, "Managed"}});
    }

    /// The variable that holds the state of the application of that name: "MY_APP_INSTALLATION_STATE" of
    /// "My App".
    [[nodiscard]] static std::string stateVariableName(std::string_view name);

    MonitorItemProtocol common;
    VariableKeyWrapper<std::string> _name{
        "Name", required, [](const std::string &name) { return std::vector{stateVariableName(name)}; },
        DeclaringForm::populated};
    KeyWrapper<std::optional<std::string>> _packageIdentifier{"Identifier", optional};
    KeyWrapper<std::optional<std::string>> _displayName{"DisplayName", optional};
    KeyWrapper<std::optional<std::string>> _detail{"Detail", optional};
    KeyWrapper<std::optional<URL>> _iconURL{"IconURL", optional};
    KeyWrapper<Installer> _installer{Installer::system, "Installer", required};
    KeyWrapper<bool> _generateVariable{false, "GenerateVariable", optional};
    KeyWrapper<bool> _isMandatory{true, "IsMandatory", optional};
};

/// A file whose presence is followed.
struct File {
    static constexpr std::string_view typeName = "MonitorItem.File";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::file;

    MonitorItemProtocol common;
    KeyWrapper<std::string> _path{"Path", required};
    KeyWrapper<bool> _isMandatory{false, "IsMandatory", optional};
};

} // namespace MonitorItems

/// Something to watch.
struct MonitorItem {
    static constexpr std::string_view typeName = "MonitorItem";
    static constexpr std::string_view typeKey = "Type";
    /// A type that is missing and one that is wrong are told in one sentence.
    static constexpr bool tellsTypeFaultsAlike = true;

    using TypeIdentifier = MonitorItems::TypeIdentifier;
    using MonitorItemProtocol = MonitorItems::MonitorItemProtocol;
    using App = MonitorItems::App;
    using File = MonitorItems::File;

    std::variant<App, File> value;

    [[nodiscard]] const std::optional<Expression> &condition() const {
        return std::visit(
            [](const auto &monitor) -> decltype(auto) { return monitor.common._condition.rawValue(); },
            value);
    }
};

} // namespace velmar
