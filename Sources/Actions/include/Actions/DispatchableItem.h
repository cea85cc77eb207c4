#pragma once

#include <memory>

namespace velmar {

struct ActionItem;
struct ActionContext;
class Dispatchable;

/// The runtime form of an item, whatever action it is. Neither pointer is null; both are kept.
[[nodiscard]] std::shared_ptr<Dispatchable> dispatchable(std::shared_ptr<const ActionItem> item,
                                                         const std::shared_ptr<const ActionContext> &context);

} // namespace velmar
