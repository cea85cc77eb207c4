#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string>
#include <string_view>

namespace velmar::ActionItems {

struct ExecuteJamfPolicy {
    static constexpr std::string_view typeName = "ActionItem.ExecuteJamfPolicy";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeJamfPolicy;

    ActionItemProtocol common;
    KeyWrapper<std::string> _name{"Name", required};
};

} // namespace velmar::ActionItems
