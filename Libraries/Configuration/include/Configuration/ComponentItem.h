#pragma once

#include <Configuration/BorderItem.h>
#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/FontItem.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/MarginsItem.h>
#include <Configuration/VariableKeyWrapper.h>

#include <variant>

namespace velmar {

/// The kinds of components; the names to use are those within ComponentItem. They stand outside of it because
/// a variant wants its alternatives whole.
namespace ComponentItems {

enum class TypeIdentifier { text, spacer };

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>(
        {{TypeIdentifier::text, "Text"}, {TypeIdentifier::spacer, "Spacer"}});
}

/// The keys that every component begins with.
struct ComponentItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<MarginsItem>> _margins{"Margins", optional};
    KeyWrapper<std::optional<BorderItem>> _border{"Border", optional};
    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: always shown.
};

struct Text {
    static constexpr std::string_view typeName = "ComponentItem.Text";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::text;

    ComponentItemProtocol common;
    VariableKeyWrapper<std::string> _text{"Text", required};
    InheritableKeyWrapper<std::optional<FontItem>> _font{"TextFontConfiguration", optional,
                                                         &Library::fontStyles};
};

struct Spacer {
    static constexpr std::string_view typeName = "ComponentItem.Spacer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::spacer;

    ComponentItemProtocol common;
    KeyWrapper<std::optional<double>> _height{"Height", optional}; ///< In points; absent takes what is left.
};

namespace Inputs {

/// How the label and the field of an input share its width.
enum class Distribution { fit, center };

constexpr auto casesOf(Distribution) {
    return std::to_array<EnumCase<Distribution>>(
        {{Distribution::fit, "Fit"}, {Distribution::center, "Center"}});
}

} // namespace Inputs

} // namespace ComponentItems

/// One piece of a container's content.
struct ComponentItem {
    static constexpr std::string_view typeName = "ComponentItem";
    static constexpr std::string_view typeKey = "Type";

    using TypeIdentifier = ComponentItems::TypeIdentifier;
    using ComponentItemProtocol = ComponentItems::ComponentItemProtocol;
    using Text = ComponentItems::Text;
    using Spacer = ComponentItems::Spacer;

    struct Input {
        using Distribution = ComponentItems::Inputs::Distribution;
    };

    std::variant<Text, Spacer> value;
};

/// The variables that the texts of a component use, those of its nested items included. Its condition is no
/// text.
[[nodiscard]] VariableNames usedVariables(const ComponentItem &component);

} // namespace velmar
