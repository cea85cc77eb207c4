#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string>
#include <string_view>

namespace velmar::ActionItems {

struct Log {
    static constexpr std::string_view typeName = "ActionItem.Log";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::log;

    ActionItemProtocol common;
    KeyWrapper<std::string> _message{"Message", required};
};

} // namespace velmar::ActionItems
