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

/// Types of inputs. Code uses the aliases in ComponentItem::Input.
enum class InputTypeIdentifier { text, list, checkboxes };

constexpr auto casesOf(InputTypeIdentifier) {
    return std::to_array<EnumCase<InputTypeIdentifier>>({{InputTypeIdentifier::text, "Text"},
                                                         {InputTypeIdentifier::list, "List"},
                                                         {InputTypeIdentifier::checkboxes, "Checkboxes"}});
}

/// The keys common to all inputs, after those common to all components.
struct InputComponentItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<std::string>> _label{"Label", optional};
    VariableKeyWrapper<std::string> _variable{"Variable", required, &nameOfVariable};
    KeyWrapper<Distribution> _distribution{Distribution::center, "Distribution", optional};
    InheritableKeyWrapper<std::optional<FontItem>> _labelFont{"LabelFontConfiguration", optional,
                                                              &Library::fontStyles};
    KeyWrapper<std::optional<double>> _percentWidth{std::nullopt, "PercentWidth", optional, {0, 1}};
};

/// The keys common to all validations; the first member of each.
struct ValidationItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<std::optional<std::string>> _warningText{"WarningText", optional};
    InheritableKeyWrapper<std::optional<FontItem>> _font{"FontConfiguration", optional, &Library::fontStyles};
};

} // namespace velmar::ComponentItems::Inputs
