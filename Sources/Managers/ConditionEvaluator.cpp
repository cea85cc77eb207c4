#include <Managers/ConditionEvaluator.h>

#include <Configuration/Configuration.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <utility>

namespace velmar {

using expressions::Expression;

ConditionEvaluator::ConditionEvaluator()
    : ConditionEvaluator(Config<NamedConditions>([](const Configuration &configuration) -> decltype(auto) {
                             return configuration._conditions();
                         }),
                         nullptr) {}

ConditionEvaluator::ConditionEvaluator(Config<NamedConditions> conditions,
                                       std::shared_ptr<const ContentManagerProtocol> contentManager)
    : _conditions(std::move(conditions)), contentManager_(std::move(contentManager)) {}

bool ConditionEvaluator::evaluate(const Expression &condition) {
    const View now = view();
    if (now.notes->failure) {
        throw now.notes->failure->error;
    }
    return condition.evaluate({*now.variables, &now.notes->values});
}

ConditionEvaluator::View ConditionEvaluator::view() {
    // The state is taken under the lock too, so that the notes never go back to a former one.
    std::unique_lock lock(mutex_);
    std::shared_ptr<const NamedConditions> book = _conditions.wrappedValue();
    VariablesSnapshot variables =
        contentManager_ ? contentManager_->variables() : ContentManager::shared()->variables();
    const bool areNew = !notes_ || notes_->book != book || notes_->version != variables.version();
    if (areNew) {
        notes_ = std::make_shared<const Notes>(std::move(book), variables);
    }
    std::shared_ptr<const Notes> notes = notes_;
    lock.unlock();
    if (areNew && notes->failure) {
        Logger::warning([&] {
            return fmt::format("The condition '{}' of 'Conditions' cannot be evaluated. {}",
                               notes->failure->condition, notes->failure->error.errorDescription());
        });
    }
    return {std::move(variables), std::move(notes)};
}

ConditionEvaluator::Notes::Notes(std::shared_ptr<const NamedConditions> conditions,
                                 const VariablesSnapshot &variables)
    : book(std::move(conditions)), version(variables.version()) {
    for (const auto &[name, condition] : book->models()) {
        try {
            values.emplace(name, condition.evaluate(*variables) ? "true" : "false");
        } catch (const expressions::ExpressionError &error) {
            failure.emplace(Failure{name, error});
            return;
        }
    }
}

ConditionEvaluator::Names::Names(std::shared_ptr<const NamedConditions> conditions_)
    : book(std::move(conditions_)) {
    for (const auto &[name, condition] : book->models()) {
        conditions.insert(name);
        variables.merge(condition.variableNames());
    }
}

VariableNames ConditionEvaluator::involvedVariables(const Expression &condition) {
    std::shared_ptr<const Names> names;
    {
        const std::lock_guard lock(mutex_);
        std::shared_ptr<const NamedConditions> book = _conditions.wrappedValue();
        if (!names_ || names_->book != book) {
            names_ = std::make_shared<const Names>(std::move(book));
        }
        names = names_;
    }
    VariableNames involved = condition.variableNames();
    std::erase_if(involved, [&](const std::string &name) { return names->conditions.contains(name); });
    involved.insert(names->variables.begin(), names->variables.end());
    return involved;
}

} // namespace velmar
