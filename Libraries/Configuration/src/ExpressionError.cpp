#include <Configuration/ExpressionError.h>
#include <Configuration/Texts.h>

#include <fmt/format.h>

#include <iterator>

namespace velmar::ExpressionErrors {

std::string OwnDefinition::errorDescription() const {
    return fmt::format("Variable '{}' used within its own initial value.", name);
}

std::string CircularReference::errorDescription() const {
    // Reported at each read, so long traces are cut in the middle.
    constexpr std::ptrdiff_t shownAtEachEnd = 10;
    if (std::ssize(originPath) <= 2 * shownAtEachEnd) {
        return fmt::format("Circular reference involving {}. Traceback: '{}'.", name,
                           fmt::join(originPath, " → "));
    }
    return fmt::format("Circular reference involving {}. Traceback: '{} → … → {}'.", name,
                       fmt::join(originPath.begin(), originPath.begin() + shownAtEachEnd, " → "),
                       fmt::join(originPath.end() - shownAtEachEnd, originPath.end(), " → "));
}

std::string UndefinedVariable::errorDescription() const {
    return fmt::format("Use of undefined variable '{}' in condition [ {} ]", variable, expression);
}

std::string UndefinedVariableAtPath::errorDescription() const {
    return fmt::format("Undefined variable in expression at '{}' {}", codingPath, description);
}

std::string Undefined::errorDescription() const {
    return fmt::format("Undefined variable(s) {} in expression at {}",
                       listText({variables.begin(), variables.end()}), codingPath);
}

std::string TooLarge::errorDescription() const {
    return fmt::format("The text grows beyond {} when its variables get their values.", limit);
}

} // namespace velmar::ExpressionErrors
