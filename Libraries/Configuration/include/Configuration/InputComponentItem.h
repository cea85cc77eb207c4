#pragma once

#include <Configuration/ComponentItemProtocol.h>
#include <Configuration/FontItem.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/InputDistribution.h>
#include <Configuration/RegularExpressionCoding.h>
#include <Configuration/VariableKeyWrapper.h>

#include <functional>
#include <variant>
#include <vector>

namespace velmar::ComponentItems {

/// The kinds of inputs; the names to use are those within ComponentItem::Input.
namespace Inputs {

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

struct Text {
    static constexpr std::string_view typeName = "ComponentItem.Input.Text";
    static constexpr InputTypeIdentifier typeIdentifier = InputTypeIdentifier::text;

    struct ValidationItem {
        static constexpr std::string_view typeName = "ComponentItem.Input.Text.ValidationItem";

        ValidationItemProtocol common;
        KeyWrapper<RegularExpression> _regex{RegularExpression(".*"), "Regex", required};
    };

    ComponentItemProtocol common;
    InputComponentItemProtocol input;
    KeyWrapper<std::optional<std::string>> _placeholder{"Placeholder", optional};
    KeyWrapper<std::optional<ValidationItem>> _validation{"Validation", optional};
};

struct List {
    static constexpr std::string_view typeName = "ComponentItem.Input.List";
    static constexpr InputTypeIdentifier typeIdentifier = InputTypeIdentifier::list;

    struct ValidationItem {
        static constexpr std::string_view typeName = "ComponentItem.Input.List.ValidationItem";

        ValidationItemProtocol common;
        KeyWrapper<std::string> _instruction{"Instruction", required};
    };

    ComponentItemProtocol common;
    InputComponentItemProtocol input;
    KeyWrapper<std::vector<std::string>> _items{"Items", required};
    KeyWrapper<std::optional<ValidationItem>> _validation{"Validation", optional};
};

struct Checkboxes {
    static constexpr std::string_view typeName = "ComponentItem.Input.Checkboxes";
    static constexpr InputTypeIdentifier typeIdentifier = InputTypeIdentifier::checkboxes;

    struct ValidationItem {
        static constexpr std::string_view typeName = "ComponentItem.Input.Checkboxes.ValidationItem";

        ValidationItemProtocol common;
    };

    ComponentItemProtocol common;
    InputComponentItemProtocol input;
    KeyWrapper<std::vector<std::string>> _items{"Items", required};
    KeyWrapper<std::optional<ValidationItem>> _validation{"Validation", optional};

    /// Tells the variable of each box: that of the input, "-" and the index from 0.
    void declareVariables(const std::function<void(std::string)> &declare) const;
};

} // namespace Inputs

/// What the user types or chooses.
struct Input {
    static constexpr std::string_view typeName = "ComponentItem.Input";
    static constexpr ComponentItems::TypeIdentifier typeIdentifier = ComponentItems::TypeIdentifier::input;
    static constexpr std::string_view typeKey = "InputType";

    using TypeIdentifier = Inputs::InputTypeIdentifier;
    using InputTypeIdentifier = Inputs::InputTypeIdentifier;
    using Distribution = Inputs::Distribution;
    using InputComponentItemProtocol = Inputs::InputComponentItemProtocol;
    using ValidationItemProtocol = Inputs::ValidationItemProtocol;
    using Text = Inputs::Text;
    using List = Inputs::List;
    using Checkboxes = Inputs::Checkboxes;

    std::variant<Text, List, Checkboxes> value;
};

} // namespace velmar::ComponentItems
