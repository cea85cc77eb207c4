#pragma once

#include <functional>

namespace velmar {

struct ActionItem;

/// An action that runs, as the dispatcher sees it.
class Dispatchable {
public:
    /// Is told how the action ended: true for success. On any thread.
    using SuccessCompletionBlock = std::function<void(bool success)>;

    virtual ~Dispatchable() = default;

    [[nodiscard]] virtual const ActionItem &item() const = 0;

    /// Called exactly once when the action has ended, and never if the action's own condition doesn't hold or
    /// can't be evaluated. It is set before `dispatch`.
    [[nodiscard]] virtual const SuccessCompletionBlock &successCompletionBlock() const = 0;
    virtual void setSuccessCompletionBlock(SuccessCompletionBlock block) = 0;

    /// Starts the action and returns; it may have ended by then. Once; any thread; never throws.
    virtual void dispatch() = 0;
};

} // namespace velmar
