#pragma once

#include <Configuration/Monitors/MonitorItemProtocol.h>
#include <Configuration/PopulatableURL.h>
#include <Configuration/VariableKeyWrapper.h>

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace velmar::MonitorItems {

/// An application whose installation is monitored.
struct App {
    static constexpr std::string_view typeName = "MonitorItem.App";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::application;

    /// The source of the installation state.
    enum class Installer { system, jamf, airwatch, managed };
    friend constexpr auto casesOf(Installer) {
        return std::to_array<EnumCase<Installer>>({{Installer::system, "System"},
                                                   {Installer::jamf, "Jamf"},
                                                   {Installer::airwatch, "AirWatch"},
                                                   {Installer::managed, "Managed"}});
    }

    /// Returns the name of the variable that holds the installation state: "MY_APP_INSTALLATION_STATE" for
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

} // namespace velmar::MonitorItems
