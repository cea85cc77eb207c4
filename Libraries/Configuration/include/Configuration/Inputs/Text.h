#pragma once

#include <Configuration/Inputs/InputComponentItemProtocol.h>
#include <Foundation/RegularExpression.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar::ComponentItems::Inputs {

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

} // namespace velmar::ComponentItems::Inputs
