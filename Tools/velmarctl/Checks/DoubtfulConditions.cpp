#include <Checks/DoubtfulConditions.h>

#include <Checks/DefinedVariables.h>
#include <ExpressionParts.h>
#include <PrintableText.h>

#include <Configuration/Configuration.h>
#include <Configuration/DecodingNotes.h>
#include <expressions/Expression.h>

#include <fmt/format.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <variant>

namespace velmar {

namespace {

using expressions::Expression;
using expressions::ExpressionElement;
using expressions::Operand;

constexpr std::size_t longestValue = 40; // In columns of a terminal.

// The kind of value that a comparison with a literal requires, or an operand on its own (nullptr). Empty for
// text, because every value is one.
std::string_view kindAskedFor(const Operand *literal) {
    if (literal == nullptr || std::holds_alternative<bool>(literal->value)) {
        return "true or false";
    }
    return std::holds_alternative<double>(literal->value) ? "a number" : "";
}

// A value of the kind that a comparison with a literal requires.
std::string goodValue(const Operand &literal) {
    return std::holds_alternative<bool>(literal.value) ? "true" : "1";
}

// The text of an operand in a condition.
std::string sourceOf(const Operand &operand) {
    const auto *const literal = std::get_if<Operand::String>(&operand.value);
    return literal != nullptr ? fmt::format("\"{}\"", literal->text) : expressions::description(operand);
}

// The error of evaluating a condition of one variable with a value; absent if there is none.
std::optional<expressions::ExpressionError> failureOf(const std::string &condition, const std::string &name,
                                                      const std::string &value) {
    try {
        static_cast<void>(Expression(condition).evaluate(Variables{{name, value}}));
        return std::nullopt;
    } catch (const expressions::ExpressionError &error) {
        return error;
    }
}

class Doubts {
public:
    Doubts(const Configuration &configuration, const DecodingNotes &notes)
        : configuration_(configuration),
          variables_(configuration._general.rawValue()._variables.rawValue().models()),
          conditions_(configuration._conditions.rawValue().models()) {
        for (const VariablesRecords::Record &record : notes.variables.records) {
            if (record.condition) {
                record_ = &record;
                isNamed_ = record.codingPath.starts_with("Conditions.");
                judge(*record.condition);
            }
        }
    }

    [[nodiscard]] std::vector<UsageWarning> warnings() && { return std::move(warnings_); }

private:
    void judge(const Expression &expression) {
        if (isNamed_) {
            for (const std::string &name : expression.variableNames()) {
                judgeName(name);
            }
        }
        const std::span<const ExpressionElement> elements = expression.elements();
        for (std::size_t index = 0; index < elements.size();) {
            const std::size_t length = partLength(elements.subspan(index));
            const auto *left = std::get_if<Operand>(&elements[index]);
            const auto *right = length == 3 ? std::get_if<Operand>(&elements[index + 2]) : nullptr;
            if (left != nullptr && left->variable() != nullptr && length == 1) {
                judgeKind(*left->variable(), nullptr, *left->variable());
            } else if (left != nullptr && right != nullptr) {
                judgeComparison(*left, expressions::description(elements[index + 1]), *right);
            }
            index += length;
        }
    }

    void judgeComparison(const Operand &left, const std::string &comparison, const Operand &right) {
        const Operand &named = left.variable() != nullptr ? left : right;
        const Operand &literal = left.variable() != nullptr ? right : left;
        if (named.variable() == nullptr || literal.variable() != nullptr) {
            return;
        }
        const std::string condition = fmt::format("{} {} {}", sourceOf(left), comparison, sourceOf(right));
        const auto failure = failureOf(condition, *named.variable(), goodValue(literal));
        if (failure && failure->as<expressions::ExpressionErrors::WrongOperatorAndOperandsAssociation>()) {
            warn(fmt::format("The comparison with '{}' and {} fails with every value of '{}'", comparison,
                             expressions::description(literal), *named.variable()));
            return;
        }
        judgeKind(*named.variable(), &literal, condition);
    }

    void judgeName(const std::string &name) {
        if (conditions_.contains(name) && !isDefinedVariable(configuration_, name)) {
            warn(fmt::format("'{}' is a named condition, and named conditions do not see each other: here it "
                             "is an undefined variable",
                             name));
        }
    }

    // `literal` is nullptr for a variable that is not compared; `condition` is this part of the expression.
    void judgeKind(const std::string &name, const Operand *literal, const std::string &condition) {
        if (!isNamed_ && conditions_.contains(name)) {
            if (literal != nullptr && !std::holds_alternative<bool>(literal->value)) {
                warn(fmt::format("The named condition '{}' is true or false, and is compared with {}", name,
                                 expressions::description(*literal)));
            }
            return;
        }
        const auto variable = variables_.find(name);
        if (variable == variables_.end() || kindAskedFor(literal).empty() ||
            !failureOf(condition, name, variable->second)) {
            return;
        }
        const std::string use = literal == nullptr
                                    ? std::string("stands alone")
                                    : fmt::format("is compared with {}", expressions::description(*literal));
        warn(fmt::format("The variable '{}' {}, and its value '{}' is not {}", name, use,
                         shortened(variable->second, longestValue), kindAskedFor(literal)));
    }

    void warn(std::string message) {
        warnings_.push_back({record_->codingPath, record_->offset, std::move(message)});
    }

    const Configuration &configuration_;
    const ExpressionsBook<std::string>::Models &variables_;
    const ExpressionsBook<Expression>::Models &conditions_;
    const VariablesRecords::Record *record_ = nullptr; // The source of the condition being judged.
    bool isNamed_ = false;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> doubtfulConditions(const CheckedFile &file) {
    return Doubts(file.configuration, file.notes).warnings();
}

} // namespace velmar
