#pragma once

#include <functional>

namespace velmar {

struct ActionItem;

/// Interface of the runtime form of an action to the dispatcher.
class Dispatchable {
public:
    /// Receives the outcome of the action. Called on any thread.
    using SuccessCompletionBlock = std::function<void(bool success)>;

    virtual ~Dispatchable() = default;

    [[nodiscard]] virtual const ActionItem &item() const = 0;

    /// Returns the block, which is called exactly once when the action has ended, but never if the action's
    /// condition doesn't hold or can't be evaluated. Set the block before `dispatch`.
    [[nodiscard]] virtual const SuccessCompletionBlock &successCompletionBlock() const = 0;
    virtual void setSuccessCompletionBlock(SuccessCompletionBlock block) = 0;

    /// Starts the action, which may end before the call returns. Call it once, on any thread. Never throws.
    virtual void dispatch() = 0;
};

} // namespace velmar
