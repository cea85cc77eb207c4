#pragma once

#include <expressions/Operator.h>

#include <optional>

namespace velmar::expressions {

/// A value together with the logic operator that follows it, if one does.
struct HalfBooleanExpression {
    bool boolean = false;
    std::optional<LogicOperator> logicOperator;
};

/// The value of the halves of one level of brackets, && above ||, folded as they come. Every level is
/// evaluated as `false || ...`. Nothing follows a half without operator.
class Reduction {
public:
    void add(HalfBooleanExpression half) noexcept {
        const bool applied = currentOperator_.evaluate(current_, half.boolean);
        const bool bindsTighter = half.logicOperator == LogicOperator::conjunction &&
                                  currentOperator_ == LogicOperator::disjunction;
        // What waits, waits with ||: false as long as nothing does.
        if (bindsTighter)
            pending_ = pending_ || current_;
        current_ = bindsTighter ? half.boolean : applied;
        currentOperator_ = half.logicOperator.value_or(LogicOperator::disjunction);
    }

    /// After a trailing && what was pending before it counts no more: `aa || bb &&` is bb.
    [[nodiscard]] bool result() const noexcept {
        return currentOperator_ == LogicOperator::conjunction ? current_ : pending_ || current_;
    }

private:
    bool pending_ = false;
    bool current_ = false;
    LogicOperator currentOperator_ = LogicOperator::disjunction;
};

} // namespace velmar::expressions
