#pragma once

#include <Configuration/Inputs/InputComponentItemProtocol.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::ComponentItems::Inputs {

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

} // namespace velmar::ComponentItems::Inputs
