#include "Plan.h"

#include <Foundation/NumberText.h>

#include <array>
#include <cstring>

namespace velmar::expressions {

namespace {

// Faster than a string comparison, since the length is known at compile time.
template <std::size_t size>
bool isWord(std::string_view text, const char (&word)[size]) noexcept {
    return text.size() == size - 1 && std::memcmp(text.data(), word, size - 1) == 0;
}

inline std::optional<bool> booleanOf(std::string_view text) noexcept {
    if (isWord(text, "true")) {
        return true;
    }
    if (isWord(text, "false")) {
        return false;
    }
    return std::nullopt;
}

const std::string &valueOf(const Plan::Name &variable, const VariableLookup &variables) {
    const std::string *value = variables.find(variable);
    if (value == nullptr) {
        throw ExpressionError(ExpressionErrors::UndefinedVariable{std::string(variable.name)});
    }
    return *value;
}

bool evaluate(const Plan::Failure &failure, const VariableLookup & /*variables*/) {
    throw ExpressionError(failure.error);
}

bool evaluate(const Plan::Single &single, const VariableLookup &variables) {
    if (const auto boolean = booleanOf(valueOf(single.variable, variables))) {
        return *boolean;
    }
    throw ExpressionError(ExpressionErrors::InvalidGrammar{
        "Trying to evaluate a single variable which has not a boolean value: " +
        std::string(single.variable.name)});
}

template <class T>
bool compare(Operator comparison, T left, T right) {
    const auto result = comparison.evaluate(left, right);
    if (!result) {
        throw ExpressionError(ExpressionErrors::WrongOperatorAndOperandsAssociation{});
    }
    return *result;
}

bool evaluate(const Plan::Comparison<Plan::Name> &comparison, const VariableLookup &variables) {
    const std::string &left = valueOf(comparison.variable, variables);
    // Only the left variable must be defined.
    const std::string *right = variables.find(comparison.other);
    if (right == nullptr) {
        return false;
    }
    const auto leftNumber = numberOf(left);
    if (const auto rightNumber = leftNumber ? numberOf(*right) : std::nullopt) {
        return compare(comparison.comparison, *leftNumber, *rightNumber);
    }
    const auto leftBoolean = booleanOf(left);
    if (const auto rightBoolean = leftBoolean ? booleanOf(*right) : std::nullopt) {
        return compare(comparison.comparison, *leftBoolean, *rightBoolean);
    }
    return compare<std::string_view>(comparison.comparison, left, *right);
}

template <class Literal, class Kind>
bool compareWithLiteral(const Plan::Comparison<Literal> &comparison, const std::optional<Kind> &value) {
    if (!value) {
        throw ExpressionError(ExpressionErrors::MismatchingType{});
    }
    const Kind literal = comparison.other;
    return comparison.isReversed ? compare(comparison.comparison, literal, *value)
                                 : compare(comparison.comparison, *value, literal);
}

bool evaluate(const Plan::Comparison<std::string> &comparison, const VariableLookup &variables) {
    return compareWithLiteral<std::string, std::string_view>(comparison,
                                                             valueOf(comparison.variable, variables));
}

bool evaluate(const Plan::Comparison<double> &comparison, const VariableLookup &variables) {
    return compareWithLiteral(comparison, numberOf(valueOf(comparison.variable, variables)));
}

bool evaluate(const Plan::Comparison<bool> &comparison, const VariableLookup &variables) {
    return compareWithLiteral(comparison, booleanOf(valueOf(comparison.variable, variables)));
}

/// Evaluates the clauses with one reduction per open bracket level.
class Evaluation {
public:
    Evaluation(std::size_t levels, const VariableLookup &variables, std::vector<Step> *steps)
        : variables_(variables), steps_(steps) {
        if (levels > usual_.size()) {
            more_.resize(levels);
            level_ = more_.data();
        }
    }

    void add(const Plan::Clause &clause) {
        for (std::size_t bracket = 0; bracket < clause.opening; ++bracket) {
            *++level_ = Reduction();
        }
        boolean_ = valueOf(clause.test);
        for (std::size_t bracket = 0; bracket < clause.closing; ++bracket) {
            boolean_ = finished();
            --level_;
        }
        if (clause.logicOperator) {
            level_->add({boolean_, clause.logicOperator});
        }
    }

    [[nodiscard]] bool result(bool endsWithOperator) {
        return endsWithOperator ? level_->result() : finished();
    }

private:
    [[nodiscard]] bool valueOf(const Plan::Test &test) {
        if (steps_ == nullptr) [[likely]] {
            return std::visit([this](const auto &each) { return evaluate(each, variables_); }, test);
        }
        const auto part = std::visit([](const auto &each) { return each.part; }, test);
        if (part.count > 0) {
            steps_->push_back({part.first, part.count, std::nullopt});
        }
        const bool value = std::visit([this](const auto &each) { return evaluate(each, variables_); }, test);
        steps_->back().result = value;
        return value;
    }

    [[nodiscard]] bool finished() {
        level_->add({boolean_, std::nullopt});
        return level_->result();
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
    if (steps != nullptr) {
        steps->clear();
    }
    Evaluation evaluation(levels_, variables, steps);
    for (const Clause &clause : clauses_) {
        evaluation.add(clause);
    }
    return evaluation.result(clauses_.back().logicOperator.has_value());
}

} // namespace velmar::expressions
