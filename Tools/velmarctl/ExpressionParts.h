#pragma once

#include <expressions/ExpressionElement.h>

#include <algorithm>
#include <cstddef>
#include <span>

namespace velmar {

/// How many of the elements, of which there is at least one, an evaluation takes together at their beginning:
/// those of a comparison, as far as it goes, or one.
[[nodiscard]] inline std::size_t partLength(std::span<const expressions::ExpressionElement> elements) {
    const bool isComparison = std::holds_alternative<expressions::Operand>(elements[0]) &&
                              elements.size() > 1 &&
                              std::holds_alternative<expressions::Operator>(elements[1]);
    return isComparison ? std::min<std::size_t>(elements.size(), 3) : 1;
}

} // namespace velmar
