#pragma once

#include "HalfBooleanExpression.h"

#include <expressions/Expression.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velmar::expressions {

/// What evaluating a list of elements comes to. Which element is read in which place, and where the chain of
/// elements breaks, depends on no variable: so that is found once, and an evaluation only runs through the
/// clauses.
class Plan {
public:
    /// The elements outlive the plan, where they are.
    explicit Plan(const std::vector<ExpressionElement> &elements);

    /// See Expression::evaluate.
    bool run(const VariableLookup &variables, std::vector<Step> *steps) const;

    struct Part {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    using Name = HashedVariableName;
    /// A variable alone.
    struct Single {
        Part part;
        Name variable;
    };
    /// A variable and another one (Name) or a literal, whose kind it takes; a literal text is composed.
    template <class Other>
    struct Comparison {
        Part part;
        Operator comparison;
        Name variable; ///< The left one of two.
        Other other;
        bool isReversed = false; ///< The variable stands on the right.
    };
    /// Evaluation gets no further; in the middle of a part unless that is empty.
    struct Failure {
        Part part;
        ExpressionError error;
    };
    using Test = std::variant<Failure, Single, Comparison<Name>, Comparison<std::string>, Comparison<double>,
                              Comparison<bool>>;
    /// `( ( test ) &&`
    struct Clause {
        std::size_t opening = 0; ///< Brackets.
        Test test;
        std::size_t closing = 0; ///< Brackets.
        std::optional<LogicOperator> logicOperator{};
    };

private:
    std::vector<Clause> clauses_; // at least one
    std::size_t levels_ = 1;
};

} // namespace velmar::expressions
