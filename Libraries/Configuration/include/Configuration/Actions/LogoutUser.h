#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct LogoutUser {
    static constexpr std::string_view typeName = "ActionItem.LogoutUser";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::logoutUser;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
