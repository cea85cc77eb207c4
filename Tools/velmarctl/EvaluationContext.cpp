#include <EvaluationContext.h>

#include <Configuration/Configuration.h>
#include <Configuration/Populatable.h>
#include <Foundation/LocalizedError.h>

#include <fmt/format.h>

#include <utility>

namespace velmar {

EvaluationContext::EvaluationContext(std::shared_ptr<const Configuration> configuration)
    : configuration_(std::move(configuration)) {
    for (const auto &[name, value] : configuration_->_general.rawValue()._variables.rawValue().models()) {
        variables_.insert_or_assign(std::string(bareVariableName(name)), value);
    }
    for (const std::string &name : configuration_->declaredVariables) {
        variables_.try_emplace(name);
    }
}

void EvaluationContext::set(std::string_view name, std::string value) {
    const std::string_view bare = bareVariableName(name);
    variables_.insert_or_assign(std::string(bare), std::move(value));
    given_.emplace(bare);
}

Evaluation EvaluationContext::evaluate(const expressions::Expression &expression) const {
    Evaluation evaluation;
    Variables named;
    const auto evaluateCondition = [&](const std::string &name, const expressions::Expression &condition) {
        NamedValue &result =
            evaluation.conditions.emplace_back(NamedValue{name, &condition, std::nullopt, {}});
        try {
            result.value = condition.evaluate(variables_);
            named.insert_or_assign(name, *result.value ? "true" : "false");
        } catch (const LocalizedError &error) {
            result.failure = error.errorDescription();
            if (evaluation.failure.empty()) {
                evaluation.failure = fmt::format("Conditions.{}: {}", name, result.failure);
            }
        }
    };
    if (configuration_) {
        for (const auto &[name, condition] : configuration_->_conditions.rawValue().models()) {
            if (!given_.contains(name)) {
                evaluateCondition(name, condition);
            }
        }
    }
    if (!evaluation.failure.empty()) {
        return evaluation;
    }
    try {
        evaluation.value = expression.evaluate({variables_, &named}, &evaluation.steps);
    } catch (const LocalizedError &error) {
        evaluation.failure = error.errorDescription();
    }
    return evaluation;
}

} // namespace velmar
