#pragma once

#include <Variables/ConditionEvaluator.h>

namespace velmar {

/// A condition over the variables of the moment, by the process's evaluator; as its functions of these names.
[[nodiscard]] inline bool evaluate(const expressions::Expression &condition) {
    return ConditionEvaluator::shared()->evaluate(condition);
}

[[nodiscard]] inline VariableNames involvedVariables(const expressions::Expression &condition) {
    return ConditionEvaluator::shared()->involvedVariables(condition);
}

} // namespace velmar
