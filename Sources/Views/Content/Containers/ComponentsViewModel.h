#pragma once

#include <Configuration/ComponentItem.h>
#include <Variables/ConditionEvaluator.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// The variables on which the presence of components depends.
[[nodiscard]] VariableNames componentsConditions(const std::vector<ComponentItem> &items,
                                                 ConditionEvaluator &conditions);

/// Components that come and go together; positions among the items, in ascending order.
struct ComponentsChange {
    std::vector<std::size_t> removed;
    std::vector<std::size_t> inserted;
    bool operator==(const ComponentsChange &) const = default;
};

/// The views of a container's components, as the model uses them: for each change the operations below in the
/// order of their declaration. Nothing calls back into the model but a completion, once, from within the
/// operation or later.
class ComponentsControllerProtocol {
public:
    virtual ~ComponentsControllerProtocol() = default;

    /// From the components, before the conditions are looked at, so that what the user was entering counts.
    virtual void takeKeyboardFocusAway() = 0;

    /// Gives up the views that go, which stay in their places for now, and makes those that come.
    virtual void prepare(const ComponentsChange &change) = 0;

    /// To what has lost it, if its component stays. Follows at once, also where nothing changes.
    virtual void giveKeyboardFocusBack() = 0;

    /// Left out where nothing goes.
    virtual void animateRemoval(std::function<void()> completion) = 0;

    /// Takes out the views that went and puts in those that come, each in its place.
    virtual void rebuildLayout() = 0;

    virtual void animateInsertion(std::function<void()> completion) = 0;
};

/// Which components of a container are on show, by their conditions, and what is under way. Main thread.
class ComponentsViewModel {
public:
    enum class State { idle, removing, inserting };

    /// Looks at the conditions for the first time. The controller, which is not yet called then, must outlive
    /// the model, and the model the completions that it gives away.
    ComponentsViewModel(std::vector<ComponentItem> items, std::shared_ptr<ConditionEvaluator> conditions,
                        ComponentsControllerProtocol &controller);

    [[nodiscard]] const std::vector<ComponentItem> &items() const noexcept { return items_; }

    /// As decided last; false is an empty place.
    [[nodiscard]] bool isShown(std::size_t position) const { return isShown_.at(position); }

    [[nodiscard]] State state() const noexcept { return state_; }
    [[nodiscard]] bool animationIsRunning() const noexcept { return state_ != State::idle; }

    /// Looks at the conditions again and has the views follow. While a change is under way requests are only
    /// counted, and any number of them makes one reload when it is over, so that the last evaluation counts.
    void reload();

private:
    [[nodiscard]] bool shouldBeShown(const ComponentItem &item) const;
    /// Decides on one position, and notes in the change what that brings.
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
