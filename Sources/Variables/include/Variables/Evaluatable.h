#pragma once

#include <Variables/ConditionEvaluator.h>

namespace velmar {

/// Shorthand for ConditionEvaluator::shared()->evaluate(condition).
[[nodiscard]] inline bool evaluate(const expressions::Expression &condition) {
    return ConditionEvaluator::shared()->evaluate(condition);
}

/// Shorthand for ConditionEvaluator::shared()->involvedVariables(condition).
[[nodiscard]] inline VariableNames involvedVariables(const expressions::Expression &condition) {
    return ConditionEvaluator::shared()->involvedVariables(condition);
}

} // namespace velmar
