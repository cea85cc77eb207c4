#pragma once

#include <Actions/Dispatchable.h>
#include <Configuration/ActionItem.h>

#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>

namespace velmar {

struct ActionContext;
struct Services;

/// Base class of the actions: holds the item, checks its condition and reports the end. Must be owned by a
/// shared_ptr: work that continues after `dispatch` has returned keeps the action alive.
class Action : public Dispatchable, public std::enable_shared_from_this<Action> {
public:
    Action(std::shared_ptr<const ActionItem> item, std::shared_ptr<const ActionContext> context)
        : item_(std::move(item)), context_(std::move(context)) {}

    [[nodiscard]] const ActionItem &item() const final { return *item_; }
    [[nodiscard]] const SuccessCompletionBlock &successCompletionBlock() const final {
        return successCompletionBlock_;
    }
    void setSuccessCompletionBlock(SuccessCompletionBlock block) final {
        successCompletionBlock_ = std::move(block);
    }

    void dispatch() final;

protected:
    /// Does the work and ensures that `complete` is called once. An exception is logged and ends the action
    /// as failed.
    virtual void perform() = 0;

    /// Calls the completion block. Further calls have no effect. Any thread.
    void complete(bool success);

    [[nodiscard]] const ActionContext &context() const noexcept { return *context_; }
    [[nodiscard]] const Services &services() const noexcept;

    /// Returns an owning pointer to the action, for callbacks that run after `dispatch` has returned. `self`
    /// must be `this`.
    template <class Self>
    [[nodiscard]] std::shared_ptr<Self> keepingAlive(Self *self) {
        return {shared_from_this(), self};
    }

    /// Posts a part of the work to the main thread. An exception is handled as one from `perform`.
    void performOnMainThread(std::function<void()> work);

private:
    void fail(const std::exception_ptr &error) noexcept;

    std::shared_ptr<const ActionItem> item_;
    std::shared_ptr<const ActionContext> context_;
    SuccessCompletionBlock successCompletionBlock_;
};

/// Returns the type of an action as written in the configuration file, such as "Log".
[[nodiscard]] std::string_view typeOf(const ActionItem &item);

/// Base class of the actions of one item type.
template <class Item>
class ActionOf : public Action {
public:
    using ItemType = Item;
    using Action::Action;

protected:
    [[nodiscard]] const Item &actionItem() const { return std::get<Item>(item().value); }
};

} // namespace velmar
