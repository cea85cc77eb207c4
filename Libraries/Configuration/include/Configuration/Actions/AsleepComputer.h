#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct AsleepComputer {
    static constexpr std::string_view typeName = "ActionItem.AsleepComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::asleepComputer;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
