#pragma once

#include <Configuration/Inputs/InputComponentItemProtocol.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::ComponentItems::Inputs {

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

    /// Declares the variable of each box: the variable of the input, "-" and the index from 0.
    void declareVariables(const std::function<void(std::string)> &declare) const;
};

} // namespace velmar::ComponentItems::Inputs
