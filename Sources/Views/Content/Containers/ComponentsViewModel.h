#pragma once

#include <Configuration/ComponentItem.h>
#include <Variables/ConditionEvaluator.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// Returns the variables that affect the conditions of the components.
[[nodiscard]] VariableNames componentsConditions(const std::vector<ComponentItem> &items,
                                                 ConditionEvaluator &conditions);

/// Components inserted and removed together, as ascending positions of their items.
struct ComponentsChange {
    std::vector<std::size_t> removed;
    std::vector<std::size_t> inserted;
    bool operator==(const ComponentsChange &) const = default;
};

/// Interface of the views of a container's components to the model, which calls the operations of a change in
/// the order of their declaration. Only completions call back into the model, once each, during the operation
/// or later.
class ComponentsControllerProtocol {
public:
    virtual ~ComponentsControllerProtocol() = default;

    /// Clears the focus of the components. Called before the evaluation, so that pending input is committed.
    virtual void takeKeyboardFocusAway() = 0;

    /// Creates the inserted views. The removed views keep their places until animateRemoval().
    virtual void prepare(const ComponentsChange &change) = 0;

    /// Restores the focus if its component remains. Called after each evaluation, even without a change.
    virtual void giveKeyboardFocusBack() = 0;

    /// Fades out the removed views. Not called if there are none.
    virtual void animateRemoval(std::function<void()> completion) = 0;

    /// Deletes the removed views and adds the inserted views to the layout.
    virtual void rebuildLayout() = 0;

    /// Fades in the inserted views.
    virtual void animateInsertion(std::function<void()> completion) = 0;
};

/// Visibility of a container's components by their conditions, and state of the change in progress. Main
/// thread.
class ComponentsViewModel {
public:
    enum class State { idle, removing, inserting };

    /// Evaluates the conditions without a call of the controller. `controller` must outlive the model, and
    /// the model must outlive the completions that it passes.
    ComponentsViewModel(std::vector<ComponentItem> items, std::shared_ptr<ConditionEvaluator> conditions,
                        ComponentsControllerProtocol &controller);

    [[nodiscard]] const std::vector<ComponentItem> &items() const noexcept { return items_; }

    /// Returns the result of the last evaluation for a position.
    [[nodiscard]] bool isShown(std::size_t position) const { return isShown_.at(position); }

    [[nodiscard]] State state() const noexcept { return state_; }
    [[nodiscard]] bool animationIsRunning() const noexcept { return state_ != State::idle; }

    /// Evaluates the conditions and updates the views. Calls during a change are coalesced into one reload
    /// after its end.
    void reload();

private:
    [[nodiscard]] bool shouldBeShown(const ComponentItem &item) const;
    /// Evaluates one position and adds its difference to `change`.
    void insertOrRemove(std::size_t position, ComponentsChange &change);
    ComponentsChange evaluateConditions();
    void insert();
    void finish();

    std::vector<ComponentItem> items_;
    std::shared_ptr<ConditionEvaluator> conditions_;
    ComponentsControllerProtocol &controller_;
    std::vector<bool> isShown_;
    State state_ = State::idle;
    int reloadInterfaceNeededCount_ = 0;
};

} // namespace velmar
