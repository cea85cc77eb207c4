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

/// A named condition and its value; none where its evaluation failed.
struct NamedValue {
    std::string name;
    const expressions::Expression *condition; ///< Of the configuration of the context.
    std::optional<bool> value;
    std::string failure;
};

/// How the evaluation of an expression went.
struct Evaluation {
    std::vector<NamedValue> conditions; ///< Every named condition that is not replaced, by name.
    /// As Expression::evaluate() tells them; none where a named condition failed.
    std::vector<expressions::Step> steps;
    std::optional<bool> value; ///< None where the evaluation failed.
    std::string failure;       ///< The language's own text, behind the condition's key path if one failed.
};

/// What an expression is evaluated over: the variables with which the application would begin, the named
/// conditions, and what the administrator gives in their place.
///
/// Values are compared as they stand, "${NAME}" in them included: they are populated where they are shown,
/// not where they are kept.
class EvaluationContext {
public:
    EvaluationContext() = default;
    /// With the variables of the configuration, the names that its keys declare (empty at first), and its
    /// named conditions.
    explicit EvaluationContext(std::shared_ptr<const Configuration> configuration);

    /// Gives a variable, named bare or as `${NAME}`, its value, in place of any variable or named condition
    /// of that name.
    void set(std::string_view name, std::string value);

    [[nodiscard]] const Variables &variables() const { return variables_; }

    /// As the application would: a named condition that fails fails every evaluation, and named conditions
    /// don't see each other.
    [[nodiscard]] Evaluation evaluate(const expressions::Expression &expression) const;

private:
    std::shared_ptr<const Configuration> configuration_; // Null without.
    Variables variables_;
    boost::unordered_flat_set<std::string, VariableNameHash, VariableNameEqual> given_;
};

} // namespace velmar
