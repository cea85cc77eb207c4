#pragma once

#include <Foundation/LocalizedError.h>
#include <expressions/Variables.h>

#include <string>
#include <vector>

namespace velmar {

/// Errors of variables, and of the texts and conditions that use them.
namespace ExpressionErrors {

struct OwnDefinition {
    std::string name;
    [[nodiscard]] std::string errorDescription() const;
};
struct CircularReference {
    std::string name;                    ///< The name that recurs.
    std::vector<std::string> originPath; ///< The names followed before it recurs, outermost first.
    [[nodiscard]] std::string errorDescription() const;
};
struct UndefinedVariable {
    std::string variable;
    std::string expression; ///< The text or condition that uses it.
    [[nodiscard]] std::string errorDescription() const;
};
struct UndefinedVariableAtPath {
    std::string codingPath;
    std::string description; ///< errorDescription() of the UndefinedVariable.
    [[nodiscard]] std::string errorDescription() const;
};
struct Undefined {
    VariableNames variables;
    std::string codingPath;
    [[nodiscard]] std::string errorDescription() const;
};
/// A text that would exceed the limits of populated().
struct TooLarge {
    std::string limit; ///< Such as "16 MiB".
    [[nodiscard]] std::string errorDescription() const;
};

} // namespace ExpressionErrors

/// The reason why variables can't be substituted. A configuration with such an error is refused; a text with
/// one is shown unchanged. Errors of the condition language are those of the namespace expressions.
class ExpressionError final
    : public ErrorOfCases<ExpressionErrors::OwnDefinition, ExpressionErrors::CircularReference,
                          ExpressionErrors::UndefinedVariable, ExpressionErrors::UndefinedVariableAtPath,
                          ExpressionErrors::Undefined, ExpressionErrors::TooLarge> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
