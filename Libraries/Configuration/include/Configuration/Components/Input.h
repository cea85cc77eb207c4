#pragma once

#include <Configuration/Inputs/Checkboxes.h>
#include <Configuration/Inputs/List.h>
#include <Configuration/Inputs/Text.h>

#include <string_view>
#include <variant>

namespace velmar::ComponentItems {

/// A text field, a list or checkboxes for the user's input.
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
