#pragma once

#include <expressions/Expression.h>

namespace velmar::expressions {

/// Returns "true", "false", or the kind and the message of the error.
template <class Function>
std::string outcomeOf(const Function &function) {
    try {
        return function() ? "true" : "false";
    } catch (const ExpressionError &error) {
        return std::to_string(error.value().index()) + ": " + error.errorDescription();
    }
}

} // namespace velmar::expressions
