#pragma once

#include <Actions/ActionSet.h>
#include <Actions/Dispatchable.h>
#include <Base/Shared.h>
#include <Dispatch/DispatchGroup.h>
#include <Dispatch/ThreadSafe.h>

#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <unordered_map>

namespace velmar {

/// What the dispatcher offers to views and managers. Any thread.
class ActionDispatcherProtocol {
public:
    virtual ~ActionDispatcherProtocol() = default;

    /// Runs the actions of a set, later: all at once or one after the other. The handler, which may be null,
    /// is called when the set has run to its end, for a parallel set on a thread of the pool, for a chain on
    /// the thread where its last action ended, which may be the main one:
    /// - a parallel set, when each of its actions has ended, whether well or not;
    /// - a chained set, when its last action has ended, whether well or not. An action before it that fails
    ///   ends the chain in silence unless the set continues after failures.
    /// The handler is never called if the condition of the set or of one of its actions doesn't hold or can't
    /// be evaluated; such an action ends a chain in any case. Nor is it called for an empty chain. It is then
    /// destroyed with the last action that runs.
    virtual void dispatch(const ActionSet &set, std::function<void()> completionHandler) = 0;
};

/// Turns sets of actions into running ones. No thread waits for an action. The application shares one.
class ActionDispatcher final : public ActionDispatcherProtocol,
                               public std::enable_shared_from_this<ActionDispatcher> {
public:
    /// Gives the runtime form of an item.
    using MakeDispatchable =
        std::function<std::shared_ptr<Dispatchable>(std::shared_ptr<const ActionItem> item)>;

    explicit ActionDispatcher(MakeDispatchable makeDispatchable);

    [[nodiscard]] static std::shared_ptr<ActionDispatcher> shared() {
        return Shared<ActionDispatcher>::instance();
    }

    void dispatch(const ActionSet &set, std::function<void()> completionHandler) override;

private:
    using Actions = std::deque<std::shared_ptr<Dispatchable>>;
    struct Chain;

    void runParallel(const Actions &actions, std::function<void()> completionHandler) const;
    static void dispatchParallel(std::size_t actionsCount, const DispatchGroup &actions,
                                 const DispatchQueue &queue, std::function<void()> completionHandler);
    void runChained(Actions actions, const std::shared_ptr<const Chain> &chain);
    void continueChain(const std::shared_ptr<const Chain> &chain, bool success);
    static void start(Dispatchable &action, const std::shared_ptr<const Chain> &chain);
    [[nodiscard]] std::shared_ptr<Dispatchable> takeFirstAction(const UUID &id);

    MakeDispatchable makeDispatchable_;
    /// Of each chain in progress, or ended early, the actions that have not started yet. Runs of one set
    /// share the entry of its identity.
    ThreadSafe<std::unordered_map<UUID, Actions>> _chainedActions;
};

} // namespace velmar
