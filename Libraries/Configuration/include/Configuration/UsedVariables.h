#pragma once

#include <expressions/VariableNames.h>

namespace velmar {

/// The variables that the texts of an item use, those of its nested items included. A condition is no text.
/// Available for ComponentItem and its alternatives.
template <class Item>
requires requires {
    Item::typeName;
}
[[nodiscard]] VariableNames usedVariables(const Item &item);

} // namespace velmar
