#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/ConfigurationEnum.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/InputDistribution.h>
#include <Configuration/VariableKeyWrapper.h>

#include <array>
#include <optional>
#include <string>

namespace velmar {
struct FontItem;
} // namespace velmar

namespace velmar::ComponentItems::Inputs {

/// The kinds of inputs; the names to use are those within ComponentItem::Input.
enum class InputTypeIdentifier { text, list, checkboxes };

constexpr auto casesOf(InputTypeIdentifier) {
    return std::to_array<EnumCase<InputTypeIdentifier>>({{InputTypeIdentifier::text, "Text"},
                                                         {InputTypeIdentifier::list, "List"},
                                                         {InputTypeIdentifier::checkboxes, "Checkboxes"}});
}

/// The keys that every input has behind those of every component.
struct InputComponentItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<std::string>> _label{"Label", optional};
    VariableKeyWrapper<std::string> _variable{"Variable", required, &nameOfVariable};
    KeyWrapper<Distribution> _distribution{Distribution::center, "Distribution", optional};
    InheritableKeyWrapper<std::optional<FontItem>> _labelFont{"LabelFontConfiguration", optional,
                                                              &Library::fontStyles};
    KeyWrapper<std::optional<double>> _percentWidth{std::nullopt, "PercentWidth", optional, {0, 1}};
};

/// The keys that every validation begins with.
struct ValidationItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<std::string>> _warningText{"WarningText", optional};
    InheritableKeyWrapper<std::optional<FontItem>> _font{"FontConfiguration", optional, &Library::fontStyles};
};

} // namespace velmar::ComponentItems::Inputs
