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

/// What the actions have in common: the item, the condition that stands before the work, and how they end.
/// Owned by shared pointers: what goes on after `dispatch` has returned keeps its action alive.
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
    /// Does the work and sees to it that `complete` is called, once. What it throws is logged and ends the
    /// action as failed.
    virtual void perform() = 0;

    /// Tells that the action has ended. Any thread.
    void complete(bool success);

    [[nodiscard]] const ActionContext &context() const noexcept { return *context_; }
    [[nodiscard]] const Services &services() const noexcept;

    /// The action itself, for what goes on after `dispatch` has returned: `keepingAlive(this)`.
    template <class Self>
    [[nodiscard]] std::shared_ptr<Self> keepingAlive(Self *self) {
        return {shared_from_this(), self};
    }

    /// Runs a part of the work on the main thread, later. What it throws counts as thrown by `perform`.
    void performOnMainThread(std::function<void()> work);

private:
    void fail(const std::exception_ptr &error) noexcept;

    std::shared_ptr<const ActionItem> item_;
    std::shared_ptr<const ActionContext> context_;
    SuccessCompletionBlock successCompletionBlock_;
};

/// The type of an action as the file names it, such as "Log".
[[nodiscard]] std::string_view typeOf(const ActionItem &item);

/// An action of one kind of item.
template <class Item>
class ActionOf : public Action {
public:
    using ItemType = Item;
    using Action::Action;

protected:
    [[nodiscard]] const Item &actionItem() const { return std::get<Item>(item().value); }
};

} // namespace velmar
