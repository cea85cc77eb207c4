#pragma once

#include <expressions/Operator.h>

#include <optional>

namespace velmar::expressions {

/// A boolean and the logical operator that follows it, if any.
struct HalfBooleanExpression {
    bool boolean = false;
    std::optional<LogicOperator> logicOperator;
};

/// Folds the booleans of one bracket level, with && before ||. Starts as `false || ...`. Nothing may be added
/// after a half without operator.
class Reduction {
public:
    void add(HalfBooleanExpression half) noexcept {
        const bool applied = currentOperator_.evaluate(current_, half.boolean);
        const bool bindsTighter = half.logicOperator == LogicOperator::conjunction &&
                                  currentOperator_ == LogicOperator::disjunction;
        // The pending value is joined with ||; false if nothing is pending.
        if (bindsTighter) {
            pending_ = pending_ || current_;
        }
        current_ = bindsTighter ? half.boolean : applied;
        currentOperator_ = half.logicOperator.value_or(LogicOperator::disjunction);
    }

    /// Returns the folded value. A trailing && discards the pending value: `aa || bb &&` is bb.
    [[nodiscard]] bool result() const noexcept {
        return currentOperator_ == LogicOperator::conjunction ? current_ : pending_ || current_;
    }

private:
    bool pending_ = false;
    bool current_ = false;
    LogicOperator currentOperator_ = LogicOperator::disjunction;
};

} // namespace velmar::expressions
