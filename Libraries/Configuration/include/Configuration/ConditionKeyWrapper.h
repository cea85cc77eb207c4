#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>

namespace velmar {

namespace expressions {
class Expression;
} // namespace expressions

using expressions::Expression;

/// Holds an optional condition. An alias suffices: Decodable<Expression> reads, records and writes conditions
/// here and in books, and the name of a registered condition is an expression with one variable.
using ConditionKeyWrapper = KeyWrapper<std::optional<Expression>>;

} // namespace velmar
