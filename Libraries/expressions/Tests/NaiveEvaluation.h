#pragma once

#include <expressions/Expression.h>

namespace velmar::expressions {

/// A second reading of the rules, step by step with lists of lists and copies. Throws ExpressionError.
bool naivelyEvaluated(std::vector<ExpressionElement> elements, const Variables &variables);

} // namespace velmar::expressions
