#pragma once

#include <expressions/ExpressionElement.h>

#include <algorithm>
#include <cstddef>
#include <span>

namespace velmar {

/// Returns the number of leading elements that are evaluated together: up to 3 for a comparison, otherwise 1.
/// `elements` must not be empty.
[[nodiscard]] inline std::size_t partLength(std::span<const expressions::ExpressionElement> elements) {
    const bool isComparison = std::holds_alternative<expressions::Operand>(elements[0]) &&
                              elements.size() > 1 &&
                              std::holds_alternative<expressions::Operator>(elements[1]);
    return isComparison ? std::min<std::size_t>(elements.size(), 3) : 1;
}

} // namespace velmar
