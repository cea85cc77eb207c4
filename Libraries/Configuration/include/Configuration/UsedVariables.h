#pragma once

#include <expressions/VariableNames.h>

namespace velmar {

/// Returns the variables used in the texts of an item and of its nested items. Conditions are excluded.
/// Available for ComponentItem and its alternatives.
template <class Item>
requires requires {
    Item::typeName;
}
[[nodiscard]] VariableNames usedVariables(const Item &item);

} // namespace velmar
