#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct RestartComputer {
    static constexpr std::string_view typeName = "ActionItem.RestartComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::restartComputer;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
