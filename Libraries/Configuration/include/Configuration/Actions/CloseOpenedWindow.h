#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct CloseOpenedWindow {
    static constexpr std::string_view typeName = "ActionItem.CloseOpenedWindow";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::closeOpenWindow;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
