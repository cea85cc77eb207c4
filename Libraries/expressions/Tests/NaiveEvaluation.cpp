#include "NaiveEvaluation.h"

#include <cstdlib>
#include <deque>

namespace velmar::expressions {
namespace {

using namespace ExpressionErrors;
using namespace std::string_literals;

using Half = std::pair<bool, std::string>; // a boolean and the text of its logic operator, "" for none
using Remaining = std::deque<ExpressionElement>;

bool apply(const std::string &logicOperator, bool left, bool right) {
    return logicOperator == "||" ? left || right : left && right;
}

Half reduced(const std::vector<Half> &list) {
    if (list.empty())
        throw ExpressionError(InvalidExpression{"Unable to evaluate the final flatten expression: []"});
    Half current = list.front();
    std::optional<Half> pending;
    for (std::size_t index = 1; index < list.size(); ++index) {
        const auto &[boolean, logic] = list[index];
        const bool applied = apply(current.second, current.first, boolean);
        if (current.second.empty()) {
        } else if (logic.empty()) {
            current = {applied, ""};
        } else if (logic == "||") {
            current = {applied, "||"};
        } else if (current.second == "&&") {
            current = {applied, "&&"};
        } else {
            pending = pending ? Half(apply(pending->second, pending->first, current.first), "||") : current;
            current = list[index];
        }
    }
    if (!pending || (current.second == "&&" && pending->second != "&&"))
        return current;
    return {apply(pending->second, pending->first, current.first), current.second};
}

std::optional<double> number(const std::string &text) {
    char *end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (text.empty() || "\0\t\n\v\f\r "s.find(text[0]) != std::string::npos || end != &text[text.size()])
        return std::nullopt;
    return value;
}

std::optional<bool> boolean(const std::string &text) {
    return text == "true" || text == "false" ? std::optional(text == "true") : std::nullopt;
}

bool compared(const Remaining &list, const Variables &variables) {
    const auto invalid = [](const char *text) { return ExpressionError(InvalidExpression{text}); };
    if (list.size() != 3)
        throw invalid("Trying to evaluate a comparison which has not exactly three elements");
    const auto *left = std::get_if<Operand>(&list[0]);
    const auto *comparison = std::get_if<Operator>(&list[1]);
    const auto *right = std::get_if<Operand>(&list[2]);
    if (comparison == nullptr)
        throw invalid("Trying to evaluate a comparison which doesn't have a comparison operator");
    if (left == nullptr)
        throw invalid("Trying to evaluate a comparison which doesn't have a left operand");
    if (right == nullptr)
        throw invalid("Trying to evaluate a comparison which doesn't have a right operand");
    const std::string *leftName = left->variable();
    const std::string *rightName = right->variable();
    if (leftName == nullptr && rightName == nullptr)
        throw ExpressionError(InvalidExpression{
            "Trying to evaluate a comparison which doesn't have at least one variable for operand: " +
            description(*left) + ", " + description(*right)});
    const std::string first = leftName != nullptr ? *leftName : *rightName;
    if (!variables.contains(first))
        throw ExpressionError(UndefinedVariable{first});
    const std::string text = variables.at(first);
    std::string other;
    std::pair<Value, Value> values;
    if (leftName != nullptr && rightName != nullptr) {
        if (!variables.contains(*rightName))
            return false;
        other = variables.at(*rightName);
        if (number(text) && number(other))
            values = {*number(text), *number(other)};
        else if (boolean(text) && boolean(other))
            values = {*boolean(text), *boolean(other)};
        else
            values = {text, other};
    } else {
        const Operand &literal = leftName != nullptr ? *right : *left;
        if (const auto *string = std::get_if<Operand::String>(&literal.value))
            values = {text, string->text};
        else if (const auto *real = std::get_if<double>(&literal.value); real != nullptr && number(text))
            values = {*number(text), *real};
        else if (const auto *truth = std::get_if<bool>(&literal.value); truth != nullptr && boolean(text))
            values = {*boolean(text), *truth};
        else
            throw ExpressionError(MismatchingType{});
        if (leftName == nullptr)
            std::swap(values.first, values.second);
    }
    const auto result = comparison->evaluate(values.first, values.second);
    if (!result)
        throw ExpressionError(WrongOperatorAndOperandsAssociation{});
    return *result;
}

bool single(const ExpressionElement &element, const Variables &variables) {
    const auto *operand = std::get_if<Operand>(&element);
    const std::string *name = operand != nullptr ? operand->variable() : nullptr;
    if (name == nullptr)
        throw ExpressionError(InvalidGrammar{"Trying to evaluate a single element which is not a variable: " +
                                             description(element)});
    if (!variables.contains(*name))
        throw ExpressionError(UndefinedVariable{*name});
    const auto value = boolean(variables.at(*name));
    if (!value)
        throw ExpressionError(
            InvalidGrammar{"Trying to evaluate a single variable which has not a boolean value: " + *name});
    return *value;
}

ExpressionElement taken(Remaining &remaining) {
    const ExpressionElement element = remaining.front();
    remaining.pop_front();
    return element;
}

std::optional<ExpressionElement> nextReduced(Remaining &remaining, const Variables &variables) {
    if (remaining.empty())
        return std::nullopt;
    const ExpressionElement element = taken(remaining);
    if (element == ExpressionElement(Bracket::opening))
        return element;
    if (remaining.empty() || !std::holds_alternative<Operator>(remaining.front()))
        return Operand{single(element, variables)};
    Remaining comparison = {element, taken(remaining)};
    if (!remaining.empty())
        comparison.push_back(taken(remaining));
    return Operand{compared(comparison, variables)};
}

} // namespace

bool naivelyEvaluated(std::vector<ExpressionElement> elements, const Variables &variables) {
    Remaining remaining(elements.begin(), elements.end());
    std::vector<std::vector<Half>> levels = {{{false, "||"}}};
    ExpressionElement previous = LogicOperator::disjunction;
    while (true) {
        const bool isBehindBracket = previous == ExpressionElement(Bracket::closing);
        std::optional<ExpressionElement> next;
        if (std::holds_alternative<LogicOperator>(previous) ||
            previous == ExpressionElement(Bracket::opening)) {
            next = nextReduced(remaining, variables);
        } else if (!remaining.empty()) {
            next = taken(remaining);
            if (!std::holds_alternative<LogicOperator>(*next) &&
                *next != ExpressionElement(Bracket::closing)) {
                if (isBehindBracket)
                    throw ExpressionError(InvalidGrammar{"Chaining a closing bracket with " +
                                                         description(*next) + " is invalid"});
                throw ExpressionError(
                    InvalidExpression{"Chaining a boolean with " + description(*next) + " is invalid"});
            }
        }
        if (!next)
            break;
        previous = *next;
        std::vector<Half> &list = levels.back();
        if (const auto *logic = std::get_if<LogicOperator>(&*next)) {
            if (list.empty() || !list.back().second.empty())
                throw ExpressionError(InvalidGrammar{
                    "Logic operator should follow a closing bracket or a comparison expression"});
            list.back().second = logic->description();
        } else if (*next == ExpressionElement(Bracket::opening)) {
            levels.emplace_back();
        } else if (*next == ExpressionElement(Bracket::closing)) {
            if (levels.size() == 1)
                throw ExpressionError(UnbalancedBrackets{});
            if (!list.empty()) {
                list.emplace_back(list.back().first, "");
                levels[levels.size() - 2].emplace_back(reduced(list).first, "");
            }
            levels.pop_back();
        } else {
            list.emplace_back(std::get<bool>(std::get<Operand>(*next).value), "");
        }
    }
    if (levels.size() != 1)
        throw ExpressionError(InvalidExpression{"Unable to flatten the expression for an uncaught error"});
    return reduced(levels.front()).first;
}

} // namespace velmar::expressions
