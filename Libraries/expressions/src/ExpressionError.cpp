#include <expressions/ExpressionError.h>

namespace velmar::expressions::ExpressionErrors {

std::string InvalidExpression::errorDescription() const {
    return text;
}

std::string InvalidStringQuotation::errorDescription() const {
    return "Invalid string quotation: " + text;
}

std::string InvalidVariableName::errorDescription() const {
    return "Invalid variable name or element: \"" + text + "\"";
}

std::string UndefinedVariable::errorDescription() const {
    return "Undefined variable: " + name;
}

std::string IncorrectElement::errorDescription() const {
    return "Incorrect element in the expression: \"" + text + "\"";
}

std::string InvalidGrammar::errorDescription() const {
    return "Invalid elements chaining: " + text;
}

std::string EmptyExpression::errorDescription() const {
    return "The expression should not be empty";
}

std::string UnbalancedBrackets::errorDescription() const {
    return "The expression contains unbaled brackets";
}

std::string MismatchingType::errorDescription() const {
    return "The types of the two operands mistmatch";
}

std::string WrongOperatorAndOperandsAssociation::errorDescription() const {
    return "The operator cannot be applied to the operands because they do not have the rigth type";
}

} // namespace velmar::expressions::ExpressionErrors
