#pragma once

#include <Base/FactoryTable.h>

#include <memory>

namespace velmar {

struct ActionContext;
struct ActionItem;
class Dispatchable;

/// Makes the runtime form of an action of one type. Neither pointer is null; both are kept.
using ActionFactory = std::shared_ptr<Dispatchable> (*)(std::shared_ptr<const ActionContext> context,
                                                        std::shared_ptr<const ActionItem> item);

/// The types of actions. The action of a type that is not built yet logs that it cannot be run, and fails.
[[nodiscard]] const FactoryTable<ActionItem, ActionFactory> &actionTable();

/// Makes the runtime form of an item, whatever action it is. Neither pointer is null; both are kept.
[[nodiscard]] std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionContext> context,
                                                         std::shared_ptr<const ActionItem> item);

} // namespace velmar
