#include "Overloaded.h"
#include "Plan.h"

#include <Foundation/NumberText.h>

#include <array>

namespace velmar::expressions {

namespace {

std::optional<bool> booleanOf(std::string_view text) noexcept {
    if (text == "true")
        return true;
    if (text == "false")
        return false;
    return std::nullopt;
}

const std::string &valueOf(Plan::Name variable, const VariableLookup &variables) {
    const std::string *value = variables.find(variable.name);
    if (value == nullptr)
        throw ExpressionError(ExpressionErrors::UndefinedVariable{std::string(variable.name)});
    return *value;
}

bool evaluate(const Plan::Single &single, const VariableLookup &variables) {
    const auto boolean = booleanOf(valueOf(single.variable, variables));
    if (!boolean)
        throw ExpressionError(ExpressionErrors::InvalidGrammar{
            "Trying to evaluate a single variable which has not a boolean value: " +
            std::string(single.variable.name)});
    return *boolean;
}

bool compare(Operator comparison, const Value &left, const Value &right) {
    const auto result = comparison.evaluate(left, right);
    if (!result)
        throw ExpressionError(ExpressionErrors::WrongOperatorAndOperandsAssociation{});
    return *result;
}

bool compareValues(Operator comparison, const std::string &left, const std::string &right) {
    const auto leftNumber = numberOf(left);
    if (const auto rightNumber = leftNumber ? numberOf(right) : std::nullopt)
        return compare(comparison, *leftNumber, *rightNumber);
    const auto leftBoolean = booleanOf(left);
    if (const auto rightBoolean = leftBoolean ? booleanOf(right) : std::nullopt)
        return compare(comparison, *leftBoolean, *rightBoolean);
    return compare(comparison, std::string_view(left), std::string_view(right));
}

bool evaluate(const Plan::Comparison &comparison, const VariableLookup &variables) {
    const std::string &text = valueOf(comparison.variable, variables);
    const auto withLiteral = [&](const std::optional<Value> &value, const Value &literal) {
        if (!value)
            throw ExpressionError(ExpressionErrors::MismatchingType{});
        return comparison.isReversed ? compare(comparison.comparison, literal, *value)
                                     : compare(comparison.comparison, *value, literal);
    };
    return std::visit(Overloaded{
                          [&](Plan::Name name) {
                              // Unlike the left one, a right variable may be missing.
                              const std::string *other = variables.find(name.name);
                              return other != nullptr && compareValues(comparison.comparison, text, *other);
                          },
                          [&](const std::string &literal) {
                              return withLiteral(std::string_view(text), std::string_view(literal));
                          },
                          [&](double literal) { return withLiteral(numberOf(text), literal); },
                          [&](bool literal) { return withLiteral(booleanOf(text), literal); },
                      },
                      comparison.other);
}

/// Runs through the operations, with one reduction for each open level of brackets.
class Evaluation {
public:
    Evaluation(std::size_t levels, const VariableLookup &variables, std::vector<Step> *steps)
        : variables_(variables), steps_(steps) {
        if (levels > usual_.size()) {
            more_.resize(levels);
            level_ = more_.data();
        }
    }

    template <class Test>
    void operator()(const Test &test) {
        begin(test.part);
        boolean_ = evaluate(test, variables_);
        if (steps_ != nullptr)
            steps_->back().result = boolean_;
    }
    void operator()(LogicOperator logicOperator) { level_->add({boolean_, logicOperator}); }
    void operator()(Bracket bracket) {
        if (bracket == Bracket::opening) {
            *++level_ = Reduction();
        } else {
            boolean_ = last();
            --level_;
        }
    }
    void operator()(const Plan::Failure &failure) {
        if (failure.part.count > 0)
            begin(failure.part);
        throw ExpressionError(failure.error);
    }

    [[nodiscard]] bool last() {
        level_->add({boolean_, std::nullopt});
        return level_->result();
    }
    [[nodiscard]] bool afterOperator() const { return level_->result(); }

private:
    void begin(Plan::Part part) {
        if (steps_ != nullptr)
            steps_->push_back({part.first, part.count, std::nullopt});
    }

    const VariableLookup &variables_;
    std::vector<Step> *steps_;
    std::array<Reduction, 16> usual_;
    std::vector<Reduction> more_;
    Reduction *level_ = usual_.data();
    bool boolean_ = false;
};

} // namespace

bool Plan::run(const VariableLookup &variables, std::vector<Step> *steps) const {
    if (steps != nullptr)
        steps->clear();
    Evaluation evaluation(levels_, variables, steps);
    for (const Operation &operation : operations_)
        std::visit([&](const auto &each) { evaluation(each); }, operation);
    return endsWithOperator_ ? evaluation.afterOperator() : evaluation.last();
}

} // namespace velmar::expressions
