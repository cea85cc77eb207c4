#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/VariableKeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar::ActionItems {

struct ExecuteCommand {
    static constexpr std::string_view typeName = "ActionItem.ExecuteCommand";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeCommand;

    ActionItemProtocol common;
    KeyWrapper<std::string> _command{"Command", required};
    VariableKeyWrapper<std::optional<std::string>> _variable{"Variable", optional, &nameOfVariable};
};

} // namespace velmar::ActionItems
