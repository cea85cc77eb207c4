#pragma once

#include "HalfBooleanExpression.h"

#include <expressions/Expression.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmar::expressions {

/// What evaluating a list of elements comes to. Which element is read in which place, and where the chain of
/// elements breaks, depends on no variable: so that is found once, and an evaluation only runs through the
/// operations.
class Plan {
public:
    Plan() = default;
    /// The elements outlive the plan, where they are.
    explicit Plan(const std::vector<ExpressionElement> &elements);

    /// See Expression::evaluate.
    bool run(const VariableLookup &variables, std::vector<Step> *steps) const;

    struct Part {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    struct Name {
        std::string_view name;
    };
    /// A variable alone.
    struct Single {
        Part part;
        Name variable;
    };
    /// A variable and another one or a literal, which takes its kind along.
    struct Comparison {
        Part part;
        Operator comparison;
        Name variable;                                       ///< The left one of two.
        std::variant<Name, std::string, double, bool> other; ///< A text is composed.
        bool isReversed = false;                             ///< The variable stands on the right.
    };
    /// Evaluation gets no further; in the middle of a part unless that is empty.
    struct Failure {
        Part part;
        ExpressionError error;
    };
    using Operation = std::variant<Single, Comparison, LogicOperator, Bracket, Failure>;

private:
    std::vector<Operation> operations_;
    std::size_t levels_ = 1;
    bool endsWithOperator_ = false;
};

} // namespace velmar::expressions
