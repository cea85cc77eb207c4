#pragma once

#include <Configuration/ActionSetItem.h>
#include <Foundation/UUID.h>

#include <algorithm>
#include <memory>
#include <variant>
#include <vector>

namespace velmar {

/// A set of actions and the identity under which it is registered.
struct ActionSet {
    UUID id;
    /// Never null; shares ownership of the enclosing object.
    std::shared_ptr<const ActionSetItemProtocol> item;

    bool operator==(const ActionSet &other) const noexcept { return id == other.id; }
};

/// Returns the sets fired by a trigger without payload, in the order of `items`, each with a new identity.
template <class Trigger>
[[nodiscard]] std::vector<ActionSet>
actionSetsFor(const std::shared_ptr<const std::vector<TriggeredActionSetItem>> &items) {
    std::vector<ActionSet> sets;
    for (const TriggeredActionSetItem &item : *items) {
        const bool isFired = std::ranges::any_of(item._triggers(), [](const ActionTrigger &trigger) {
            return std::holds_alternative<Trigger>(trigger.value);
        });
        if (isFired) {
            sets.push_back({UUID(), {items, &item.set}});
        }
    }
    return sets;
}

} // namespace velmar
