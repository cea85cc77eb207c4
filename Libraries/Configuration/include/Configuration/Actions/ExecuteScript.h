#pragma once

#include <Configuration/ActionItemProtocol.h>
#include <Configuration/VariableKeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::ActionItems {

struct ExecuteScript {
    static constexpr std::string_view typeName = "ActionItem.ExecuteScript";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeScript;

    ActionItemProtocol common;
    KeyWrapper<std::string> _scriptPath{"ScriptPath", required};
    KeyWrapper<std::vector<std::string>> _arguments{"Arguments", optional};
    VariableKeyWrapper<std::optional<std::string>> _variable{"Variable", optional, &nameOfVariable};
};

} // namespace velmar::ActionItems
