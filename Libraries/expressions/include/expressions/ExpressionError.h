#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar::expressions {

/// The cases of ExpressionError. The texts are kept as they are, slips included: administrators search for
/// them.
namespace ExpressionErrors {

struct InvalidExpression {
    std::string text;
    [[nodiscard]] std::string errorDescription() const;
};
struct InvalidStringQuotation {
    std::string text;
    [[nodiscard]] std::string errorDescription() const;
};
struct InvalidVariableName {
    std::string text;
    [[nodiscard]] std::string errorDescription() const;
};
struct UndefinedVariable {
    std::string name;
    [[nodiscard]] std::string errorDescription() const;
};
struct IncorrectElement {
    std::string text;
    [[nodiscard]] std::string errorDescription() const;
};
struct InvalidGrammar {
    std::string text;
    [[nodiscard]] std::string errorDescription() const;
};
struct EmptyExpression {
    [[nodiscard]] std::string errorDescription() const;
};
struct UnbalancedBrackets {
    [[nodiscard]] std::string errorDescription() const;
};
struct MismatchingType {
    [[nodiscard]] std::string errorDescription() const;
};
struct WrongOperatorAndOperandsAssociation {
    [[nodiscard]] std::string errorDescription() const;
};

} // namespace ExpressionErrors

/// Why a text is no expression, or an expression has no value.
class ExpressionError final
    : public ErrorOfCases<ExpressionErrors::InvalidExpression, ExpressionErrors::InvalidStringQuotation,
                          ExpressionErrors::InvalidVariableName, ExpressionErrors::UndefinedVariable,
                          ExpressionErrors::IncorrectElement, ExpressionErrors::InvalidGrammar,
                          ExpressionErrors::EmptyExpression, ExpressionErrors::UnbalancedBrackets,
                          ExpressionErrors::MismatchingType,
                          ExpressionErrors::WrongOperatorAndOperandsAssociation> {
public:
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar::expressions
