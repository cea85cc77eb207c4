#include "Plan.h"

#include "Overloaded.h"

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

Plan::Test singleAt(const Elements &elements, std::size_t first) {
    const Plan::Part part{first, 1};
    const auto *operand = std::get_if<Operand>(&elements[first]);
    const std::string *variable = operand != nullptr ? operand->variable() : nullptr;
    if (variable == nullptr) {
        return Plan::Failure{part,
                             invalidGrammar("Trying to evaluate a single element which is not a variable: " +
                                            description(elements[first]))};
    }
    return Plan::Single{part, Plan::Name(*variable)};
}

Plan::Test comparisonAt(const Elements &elements, std::size_t first) {
    const Plan::Part part{first, std::min<std::size_t>(3, elements.size() - first)};
    const auto failure = [&](const char *text) { return Plan::Failure{part, invalidExpression(text)}; };
    if (part.count < 3) {
        return failure("Trying to evaluate a comparison which has not exactly three elements");
    }
    const auto *left = std::get_if<Operand>(&elements[first]);
    const auto *right = std::get_if<Operand>(&elements[first + 2]);
    if (left == nullptr) {
        return failure("Trying to evaluate a comparison which doesn't have a left operand");
    }
    if (right == nullptr) {
        return failure("Trying to evaluate a comparison which doesn't have a right operand");
    }

    const bool isReversed = left->variable() == nullptr;
    const std::string *variable = isReversed ? right->variable() : left->variable();
    if (variable == nullptr) {
        return Plan::Failure{part, invalidExpression("Trying to evaluate a comparison which doesn't have at "
                                                     "least one variable for operand: " +
                                                     description(*left) + ", " + description(*right))};
    }
    const auto comparedWith = [&]<class Other>(Other other) -> Plan::Test {
        return Plan::Comparison<Other>{part, std::get<Operator>(elements[first + 1]), Plan::Name(*variable),
                                       std::move(other), isReversed};
    };
    return std::visit(
        Overloaded{
            [&](const Operand::Variable &other) { return comparedWith(Plan::Name(other.name)); },
            [&](const Operand::String &string) { return comparedWith(UnicodeText::composed(string.text)); },
            [&](auto literal) { return comparedWith(literal); },
        },
        (isReversed ? left : right)->value);
}

Plan::Test testAt(const Elements &elements, std::size_t first) {
    const bool isCompared =
        first + 1 < elements.size() && std::holds_alternative<Operator>(elements[first + 1]);
    return isCompared ? comparisonAt(elements, first) : singleAt(elements, first);
}

std::size_t lengthOf(const Plan::Test &test) {
    return std::visit([](const auto &each) { return each.part.count; }, test);
}

} // namespace

Plan::Plan(const Elements &elements) {
    std::size_t next = 0;
    std::size_t level = 0;
    const auto isAt = [&](Bracket bracket) {
        return next < elements.size() && elements[next] == ExpressionElement(bracket);
    };
    const auto failure = [](ExpressionError error) { return Clause{.test = Failure{{}, std::move(error)}}; };
    while (next < elements.size()) {
        std::size_t opening = 0;
        for (; isAt(Bracket::opening); ++next) {
            ++opening;
        }
        level += opening;
        levels_ = std::max(levels_, level + 1);
        if (next == elements.size()) {
            break;
        }

        Clause &clause = clauses_.emplace_back(Clause{.opening = opening, .test = testAt(elements, next)});
        if (std::holds_alternative<Failure>(clause.test)) {
            return;
        }
        next += lengthOf(clause.test);

        for (; isAt(Bracket::closing); ++next) {
            if (clause.closing == level) {
                clauses_.push_back(failure(ExpressionErrors::UnbalancedBrackets{}));
                return;
            }
            ++clause.closing;
        }
        level -= clause.closing;
        if (next == elements.size()) {
            break;
        }

        const auto *logicOperator = std::get_if<LogicOperator>(&elements[next]);
        if (logicOperator == nullptr) {
            const std::string rest = description(elements[next]) + " is invalid";
            clauses_.push_back(failure(clause.closing > 0
                                           ? invalidGrammar("Chaining a closing bracket with " + rest)
                                           : invalidExpression("Chaining a boolean with " + rest)));
            return;
        }
        clause.logicOperator = *logicOperator;
        ++next;
    }
    if (level > 0) {
        clauses_.push_back(
            failure(invalidExpression("Unable to flatten the expression for an uncaught error")));
    }
}

} // namespace velmar::expressions
