#include <Variables/ConditionEvaluator.h>

#include <Configuration/Configuration.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <utility>

namespace velmar {

using expressions::Expression;

ConditionEvaluator::ConditionEvaluator()
    : _conditions([](const Configuration &c) -> decltype(auto) { return c._conditions(); }) {}

ConditionEvaluator::ConditionEvaluator(NamedConditions conditions,
                                       std::shared_ptr<const ContentManagerProtocol> contentManager)
    : _conditions(Config<NamedConditions>::always(std::move(conditions))),
      contentManager_(std::move(contentManager)) {}

bool ConditionEvaluator::evaluate(const Expression &condition) {
    const View now = view();
    if (now.notes->failure) {
        throw now.notes->failure->error;
    }
    return condition.evaluate({*now.variables, &now.notes->values});
}

ConditionEvaluator::View ConditionEvaluator::view() {
    const auto book = _conditions.wrappedValue();
    VariablesSnapshot variables =
        contentManager_ ? contentManager_->variables() : ContentManager::shared()->variables();
    {
        const std::lock_guard lock(mutex_);
        if (notes_ && notes_->book == book && notes_->version == variables.version()) {
            return {std::move(variables), notes_};
        }
    }
    // Not locked: a long book must not block other threads. Two threads may compute the same notes.
    const auto notes = std::make_shared<const Notes>(book, variables);
    bool areNew = false;
    {
        const std::lock_guard lock(mutex_);
        // Notes of a superseded state are used by this call only.
        areNew = !notes_ || notes_->book != book || notes_->version < notes->version;
        if (areNew) {
            notes_ = notes;
        }
    }
    if (areNew && notes->failure) {
        Logger::warning([&] {
            return fmt::format("The condition '{}' of 'Conditions' cannot be evaluated. {}",
                               notes->failure->condition, notes->failure->error.errorDescription());
        });
    }
    return {std::move(variables), notes};
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
