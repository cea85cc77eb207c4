#include <DoubtfulConditions.h>

#include <ExpressionParts.h>
#include <PrintableText.h>

#include <Configuration/Configuration.h>
#include <expressions/Expression.h>

#include <fmt/format.h>

#include <cstddef>
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

// What a condition can ask of a value. The language itself says whether the value is of that kind.
class Kind {
public:
    Kind(std::string_view name, std::string_view probe) : name_(name), probe_(probe) {}

    [[nodiscard]] std::string_view name() const { return name_; }

    [[nodiscard]] bool has(const std::string &value) const {
        try {
            static_cast<void>(probe_.evaluate(Variables{{"VALUE", value}}));
            return true;
        } catch (const expressions::ExpressionError &) {
            return false;
        }
    }

private:
    std::string_view name_;
    Expression probe_;
};

// The kind that a literal, or standing alone, asks of a variable; null for text, which every value is.
const Kind *kindBeside(const Operand *literal) {
    static const Kind number("a number", "VALUE == 1");
    static const Kind boolean("true or false", "VALUE == true");
    if (literal == nullptr || std::holds_alternative<bool>(literal->value)) {
        return &boolean;
    }
    return std::holds_alternative<double>(literal->value) ? &number : nullptr;
}

class Doubts {
public:
    explicit Doubts(const Configuration &configuration)
        : configuration_(configuration),
          variables_(configuration._general.rawValue()._variables.rawValue().models()),
          conditions_(configuration._conditions.rawValue().models()) {
        for (const VariablesRecords::Record &record : configuration.variablesRecords.records) {
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
                judgeKind(*left->variable(), nullptr);
            } else if (left != nullptr && right != nullptr) {
                judgeComparison(*left, *right);
            }
            index += length;
        }
    }

    void judgeComparison(const Operand &left, const Operand &right) {
        if (left.variable() != nullptr && right.variable() == nullptr) {
            judgeKind(*left.variable(), &right);
        } else if (left.variable() == nullptr && right.variable() != nullptr) {
            judgeKind(*right.variable(), &left);
        }
    }

    void judgeName(const std::string &name) {
        const bool isDefined = variables_.contains(name) || configuration_.declaredVariables.contains(name) ||
                               enumValue<GeneralSection::Placeholders>(name).has_value();
        if (conditions_.contains(name) && !isDefined) {
            warn(fmt::format("'{}' is a named condition, and named conditions do not see each other: here it "
                             "is an undefined variable",
                             name));
        }
    }

    // `literal` is what the variable is compared with; null where it stands alone.
    void judgeKind(const std::string &name, const Operand *literal) {
        if (!isNamed_ && conditions_.contains(name)) {
            if (literal != nullptr && !std::holds_alternative<bool>(literal->value)) {
                warn(fmt::format("The named condition '{}' is true or false, and is compared with {}", name,
                                 expressions::description(*literal)));
            }
            return;
        }
        const auto variable = variables_.find(name);
        const Kind *kind = kindBeside(literal);
        if (variable == variables_.end() || kind == nullptr ||
            variable->second.find("${") != std::string::npos || kind->has(variable->second)) {
            return;
        }
        const std::string use = literal == nullptr
                                    ? std::string("stands alone")
                                    : fmt::format("is compared with {}", expressions::description(*literal));
        warn(fmt::format("The variable '{}' {}, and its value '{}' is not {}", name, use,
                         shortened(variable->second, longestValue), kind->name()));
    }

    void warn(std::string message) {
        warnings_.push_back({record_->codingPath, record_->offset, std::move(message)});
    }

    const Configuration &configuration_;
    const ExpressionsBook<std::string>::Models &variables_;
    const ExpressionsBook<Expression>::Models &conditions_;
    const VariablesRecords::Record *record_ = nullptr; // Of the condition being judged.
    bool isNamed_ = false;
    std::vector<UsageWarning> warnings_;
};

} // namespace

std::vector<UsageWarning> doubtfulConditions(const Configuration &configuration) {
    return Doubts(configuration).warnings();
}

} // namespace velmar
