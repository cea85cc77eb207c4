#pragma once

#include <Foundation/LocalizedError.h>
#include <expressions/Variables.h>

#include <string>
#include <vector>

namespace velmar {

/// Faults of variables and of what uses them.
namespace ExpressionErrors {

struct OwnDefinition {
    std::string name;
    [[nodiscard]] std::string errorDescription() const;
};
struct CircularReference {
    std::string name;                    ///< The one that came up again.
    std::vector<std::string> originPath; ///< The names followed up to there, the first one first.
    [[nodiscard]] std::string errorDescription() const;
};
struct UndefinedVariable {
    std::string variable;
    std::string expression; ///< The text or condition that uses it.
    [[nodiscard]] std::string errorDescription() const;
};
struct UndefinedVariableAtPath {
    std::string codingPath;
    std::string description; ///< Of the UndefinedVariable.
    [[nodiscard]] std::string errorDescription() const;
};
struct Undefined {
    VariableNames variables;
    std::string codingPath;
    [[nodiscard]] std::string errorDescription() const;
};
/// A text that would grow beyond the limits of `populated`.
struct TooLarge {
    std::string limit; ///< Such as "16 MiB".
    [[nodiscard]] std::string errorDescription() const;
};

} // namespace ExpressionErrors

/// Why variables can't be put in their places: of a configuration that is refused, or of a text that is shown
/// as it stands. The errors of the language of conditions itself are those of the namespace expressions.
class ExpressionError final
    : public ErrorOfCases<ExpressionErrors::OwnDefinition, ExpressionErrors::CircularReference,
                          ExpressionErrors::UndefinedVariable, ExpressionErrors::UndefinedVariableAtPath,
                          ExpressionErrors::Undefined, ExpressionErrors::TooLarge> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar
