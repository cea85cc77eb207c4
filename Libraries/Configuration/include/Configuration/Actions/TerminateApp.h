#pragma once

#include <Configuration/ActionItemProtocol.h>

#include <string_view>

namespace velmar::ActionItems {

struct TerminateApp {
    static constexpr std::string_view typeName = "ActionItem.TerminateApp";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::terminateApp;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
