#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>

namespace velmar {

namespace expressions {
class Expression;
} // namespace expressions

using expressions::Expression;

/// Holds a condition, absent where none is given. No holder of its own: a condition is read, recorded and
/// written by what its type means in the file, also where it stands in a book, and the name of a registered
/// condition is an expression like any other, of one variable.
using ConditionKeyWrapper = KeyWrapper<std::optional<Expression>>;

} // namespace velmar
