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

/// The evaluation of a list of elements, prepared as a list of clauses. The order of reads and the place of a
/// syntax error don't depend on variables, so they are determined once.
class Plan {
public:
    /// `elements` must outlive the plan at the same address.
    explicit Plan(const std::vector<ExpressionElement> &elements);

    /// Evaluates the plan; see Expression::evaluate.
    bool run(const VariableLookup &variables, std::vector<Step> *steps) const;

    struct Part {
        std::size_t first = 0;
        std::size_t count = 0;
    };
    using Name = HashedVariableName;
    /// A single variable.
    struct Single {
        Part part;
        Name variable;
    };
    /// Compares a variable with another variable (Name) or a literal of a certain kind. A literal text is
    /// stored composed.
    template <class Other>
    struct Comparison {
        Part part;
        Operator comparison;
        Name variable; ///< The left one of two variables.
        Other other;
        bool isReversed = false; ///< True if the variable is the right operand.
    };
    /// The evaluation fails here. `part` is empty if the fault is between two parts.
    struct Failure {
        Part part;
        ExpressionError error;
    };
    using Test = std::variant<Failure, Single, Comparison<Name>, Comparison<std::string>, Comparison<double>,
                              Comparison<bool>>;
    /// A test with its brackets and the following operator: `( ( test ) &&`
    struct Clause {
        std::size_t opening = 0; ///< number of brackets before the test
        Test test;
        std::size_t closing = 0; ///< number of brackets after the test
        std::optional<LogicOperator> logicOperator{};
    };

private:
    std::vector<Clause> clauses_; // at least one
    std::size_t levels_ = 1;
};

} // namespace velmar::expressions
