#pragma once

#include <expressions/Expression.h>

namespace velmar::expressions {

/// "true", "false", or the kind and the text of the failure.
template <class Function>
std::string outcomeOf(const Function &function) {
    try {
        return function() ? "true" : "false";
    } catch (const ExpressionError &error) {
        return std::to_string(error.value().index()) + ": " + error.errorDescription();
    }
}

} // namespace velmar::expressions
