#pragma once

#include <expressions/Expression.h>
#include <expressions/Variables.h>

#include <boost/unordered/unordered_flat_set.hpp>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

struct Configuration;

/// A named condition and its value; absent if its evaluation failed.
struct NamedValue {
    std::string name;
    const expressions::Expression *condition; ///< Owned by the context's configuration.
    std::optional<bool> value;
    std::string failure;
};

/// The outcome of evaluating an expression.
struct Evaluation {
    std::vector<NamedValue> conditions; ///< All named conditions that are not overridden, by name.
    /// The steps reported by Expression::evaluate(). Empty if a named condition failed.
    std::vector<expressions::Step> steps;
    std::optional<bool> value; ///< Absent if the evaluation failed.
    std::string failure;       ///< The evaluator's error, after the key path of the failed condition if any.
};

/// The input of an evaluation: the variables of the application at start, the named conditions, and the
/// values that override them.
///
/// Values are compared literally, including any "${NAME}": the application populates values where they are
/// displayed, not where they are stored.
class EvaluationContext {
public:
    EvaluationContext() = default;
    /// Takes the variables of the configuration, the variables declared by its keys (initially empty), and
    /// its named conditions. The configuration must not be null.
    explicit EvaluationContext(std::shared_ptr<const Configuration> configuration);

    /// Sets a variable, named bare or as `${NAME}`. Overrides a variable or named condition of that name.
    void set(std::string_view name, std::string value);

    [[nodiscard]] const Variables &variables() const { return variables_; }

    /// Evaluates the expression as the application does: a failed named condition fails every evaluation, and
    /// named conditions don't see each other.
    [[nodiscard]] Evaluation evaluate(const expressions::Expression &expression) const;

private:
    std::shared_ptr<const Configuration> configuration_; // Null if default-constructed.
    Variables variables_;
    boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> given_;
};

} // namespace velmar
