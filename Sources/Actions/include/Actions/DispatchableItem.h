#pragma once

#include <Base/FactoryTable.h>

#include <memory>

namespace velmar {

struct ActionContext;
struct ActionItem;
class Dispatchable;

/// Creates the runtime form of an action of one type, which owns both arguments. Neither may be null.
using ActionFactory = std::shared_ptr<Dispatchable> (*)(std::shared_ptr<const ActionContext> context,
                                                        std::shared_ptr<const ActionItem> item);

/// Returns the factories by type of action. Actions of an unsupported type log an error and fail.
[[nodiscard]] const FactoryTable<ActionItem, ActionFactory> &actionTable();

/// Creates the runtime form of an action of any type, which owns both arguments. Neither may be null.
[[nodiscard]] std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionContext> context,
                                                         std::shared_ptr<const ActionItem> item);

} // namespace velmar
