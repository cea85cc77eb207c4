#pragma once

#include <Foundation/LocalizedError.h>

#include <string>

namespace velmar::expressions {

/// Cases of ExpressionError. Their texts are kept unchanged, including typos, because administrators search
/// for them.
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

/// An invalid expression, or a failed evaluation.
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
