#include "Plan.h"

#include <Foundation/UnicodeText.h>

#include <algorithm>
#include <utility>

namespace velmar::expressions {

namespace {

using Elements = std::vector<ExpressionElement>;

ExpressionError invalidExpression(std::string text) {
    return ExpressionErrors::InvalidExpression{std::move(text)};
}

ExpressionError invalidGrammar(std::string text) {
    return ExpressionErrors::InvalidGrammar{std::move(text)};
}

Plan::Operation singleAt(const Elements &elements, std::size_t first) {
    const Plan::Part part{first, 1};
    const auto *operand = std::get_if<Operand>(&elements[first]);
    const std::string *variable = operand != nullptr ? operand->variable() : nullptr;
    if (variable == nullptr)
        return Plan::Failure{part,
                             invalidGrammar("Trying to evaluate a single element which is not a variable: " +
                                            description(elements[first]))};
    return Plan::Single{part, {*variable}};
}

decltype(Plan::Comparison::other) otherOf(const Operand &operand) {
    if (const std::string *variable = operand.variable())
        return Plan::Name{*variable};
    if (const auto *string = std::get_if<Operand::String>(&operand.value))
        return UnicodeText::composed(string->text);
    if (const auto *number = std::get_if<double>(&operand.value))
        return *number;
    return std::get<bool>(operand.value);
}

Plan::Operation comparisonAt(const Elements &elements, std::size_t first) {
    const Plan::Part part{first, std::min<std::size_t>(3, elements.size() - first)};
    const auto failure = [&](const char *text) { return Plan::Failure{part, invalidExpression(text)}; };
    if (part.count < 3)
        return failure("Trying to evaluate a comparison which has not exactly three elements");
    const auto *left = std::get_if<Operand>(&elements[first]);
    const auto *right = std::get_if<Operand>(&elements[first + 2]);
    if (left == nullptr)
        return failure("Trying to evaluate a comparison which doesn't have a left operand");
    if (right == nullptr)
        return failure("Trying to evaluate a comparison which doesn't have a right operand");

    const bool isReversed = left->variable() == nullptr;
    const std::string *variable = isReversed ? right->variable() : left->variable();
    if (variable == nullptr)
        return Plan::Failure{part, invalidExpression("Trying to evaluate a comparison which doesn't have at "
                                                     "least one variable for operand: " +
                                                     description(*left) + ", " + description(*right))};
    return Plan::Comparison{part,
                            std::get<Operator>(elements[first + 1]),
                            {*variable},
                            otherOf(isReversed ? *left : *right),
                            isReversed};
}

// What may stand at the beginning and behind an operator or an opening bracket.
Plan::Operation valueAt(const Elements &elements, std::size_t first) {
    const auto *bracket = std::get_if<Bracket>(&elements[first]);
    if (bracket != nullptr && *bracket == Bracket::opening)
        return *bracket;
    const bool isCompared =
        first + 1 < elements.size() && std::holds_alternative<Operator>(elements[first + 1]);
    return isCompared ? comparisonAt(elements, first) : singleAt(elements, first);
}

// What may stand behind a value.
Plan::Operation linkAt(const ExpressionElement &element, bool isBehindBracket, std::size_t level) {
    if (const auto *logicOperator = std::get_if<LogicOperator>(&element))
        return *logicOperator;
    if (const auto *bracket = std::get_if<Bracket>(&element);
        bracket != nullptr && *bracket == Bracket::closing) {
        if (level == 0)
            return Plan::Failure{{}, ExpressionErrors::UnbalancedBrackets{}};
        return *bracket;
    }
    return Plan::Failure{
        {},
        isBehindBracket
            ? invalidGrammar("Chaining a closing bracket with " + description(element) + " is invalid")
            : invalidExpression("Chaining a boolean with " + description(element) + " is invalid")};
}

std::size_t lengthOf(const Plan::Operation &operation) {
    const auto *comparison = std::get_if<Plan::Comparison>(&operation);
    return comparison != nullptr ? comparison->part.count : 1;
}

} // namespace

Plan::Plan(const Elements &elements) {
    bool expectsValue = true;
    bool isBehindBracket = false;
    std::size_t level = 0;
    for (std::size_t next = 0; next < elements.size(); next += lengthOf(operations_.back())) {
        const Operation &operation = operations_.emplace_back(
            expectsValue ? valueAt(elements, next) : linkAt(elements[next], isBehindBracket, level));
        if (std::holds_alternative<Failure>(operation))
            return;
        const auto *bracket = std::get_if<Bracket>(&operation);
        const bool isOpening = bracket != nullptr && *bracket == Bracket::opening;
        isBehindBracket = bracket != nullptr && !isOpening;
        expectsValue = isOpening || std::holds_alternative<LogicOperator>(operation);
        if (isOpening)
            levels_ = std::max(levels_, ++level + 1);
        else if (isBehindBracket)
            --level;
    }
    if (level > 0)
        operations_.emplace_back(
            Failure{{}, invalidExpression("Unable to flatten the expression for an uncaught error")});
    endsWithOperator_ = expectsValue;
}

} // namespace velmar::expressions
