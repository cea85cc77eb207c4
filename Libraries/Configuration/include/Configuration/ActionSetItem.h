#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>

#include <array>
#include <string_view>
#include <vector>

namespace velmar {

struct ActionItem;
struct ActionTrigger;

namespace ActionItems {

enum class ExecutionType {
    parallel, ///< All actions at once.
    chained,  ///< One action after another.
};

constexpr auto casesOf(ExecutionType) {
    return std::to_array<EnumCase<ExecutionType>>(
        {{ExecutionType::parallel, "Parallel"}, {ExecutionType::chained, "Chained"}});
}

/// The keys common to all action sets; the first member of each.
struct ActionSetItemProtocol {
    using IsKeyGroup = void;

    KeyWrapper<ExecutionType> _type{ExecutionType::parallel, "Type", required};
    KeyWrapper<std::vector<ActionItem>> _actions{"Actions", required};
    ConditionKeyWrapper _condition{"Condition", optional};
    KeyWrapper<bool> _continueAfterFailure{false, "ContinueAfterFailure", optional};
};

} // namespace ActionItems

using ActionItems::ActionSetItemProtocol;

/// Actions that run as one set.
struct ActionSetItem {
    static constexpr std::string_view typeName = "ActionSetItem";

    using ExecutionType = ActionItems::ExecutionType;

    ActionSetItemProtocol set;
};

/// Actions that run as one set when one of the triggers fires.
struct TriggeredActionSetItem {
    static constexpr std::string_view typeName = "TriggeredActionSetItem";

    ActionSetItemProtocol set;
    KeyWrapper<std::vector<ActionTrigger>> _triggers{"Triggers", required};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
