#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct ShutdownComputer {
    static constexpr std::string_view typeName = "ActionItem.ShutdownComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::shutdownComputer;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
