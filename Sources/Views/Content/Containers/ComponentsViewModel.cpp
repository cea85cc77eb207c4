#include <Views/Content/Containers/ComponentsViewModel.h>

#include <Foundation/LocalizedError.h>

#include <fmt/core.h>
#include <logger/Logger.h>

#include <utility>

namespace velmar {

VariableNames componentsConditions(const std::vector<ComponentItem> &items, ConditionEvaluator &conditions) {
    VariableNames names;
    for (const ComponentItem &item : items) {
        if (const auto &condition = item.common()._condition()) {
            names.merge(conditions.involvedVariables(*condition));
        }
    }
    return names;
}

ComponentsViewModel::ComponentsViewModel(std::vector<ComponentItem> items,
                                         std::shared_ptr<ConditionEvaluator> conditions,
                                         ComponentsControllerProtocol &controller)
    : items_(std::move(items)),
      conditions_(std::move(conditions)),
      controller_(controller),
      isShown_(items_.size(), false) {
    evaluateConditions();
}

void ComponentsViewModel::reload() {
    if (animationIsRunning()) {
        ++reloadInterfaceNeededCount_;
        return;
    }
    controller_.takeKeyboardFocusAway();
    const ComponentsChange change = evaluateConditions();
    const bool isNothing = change == ComponentsChange();
    if (!isNothing) {
        controller_.prepare(change);
    }
    controller_.giveKeyboardFocusBack();
    if (isNothing) {
        return;
    }
    if (change.removed.empty()) {
        insert();
        return;
    }
    state_ = State::removing;
    controller_.animateRemoval([this] { insert(); });
}

void ComponentsViewModel::insert() {
    controller_.rebuildLayout();
    state_ = State::inserting;
    controller_.animateInsertion([this] { finish(); });
}

void ComponentsViewModel::finish() {
    state_ = State::idle;
    if (std::exchange(reloadInterfaceNeededCount_, 0) > 0) {
        reload();
    }
}

ComponentsChange ComponentsViewModel::evaluateConditions() {
    ComponentsChange change;
    for (std::size_t position = 0; position < items_.size(); ++position) {
        insertOrRemove(position, change);
    }
    return change;
}

void ComponentsViewModel::insertOrRemove(std::size_t position, ComponentsChange &change) {
    const bool isShown = shouldBeShown(items_[position]);
    if (isShown != isShown_[position]) {
        (isShown ? change.inserted : change.removed).push_back(position);
        isShown_[position] = isShown;
    }
}

bool ComponentsViewModel::shouldBeShown(const ComponentItem &item) const {
    const std::optional<Expression> &condition = item.common()._condition();
    if (!condition) {
        return true;
    }
    try {
        return conditions_->evaluate(*condition);
    } catch (const LocalizedError &error) {
        Logger::error([&] {
            return fmt::format("Unable to evaluate the expression {}. {}", condition->description(),
                               error.errorDescription());
        });
        return false;
    }
}

} // namespace velmar
