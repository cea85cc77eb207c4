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

/// Interface of the dispatcher of action sets. Thread-safe.
class ActionDispatcherProtocol {
public:
    virtual ~ActionDispatcherProtocol() = default;

    /// Runs the actions of a set asynchronously, in parallel or as a chain. The handler, which may be null,
    /// is called at the end of the set:
    /// - parallel: on a pool thread, once each action has succeeded or failed;
    /// - chained: on the thread on which the last action ended, possibly the main thread. An earlier action
    ///   that fails ends the chain without a call unless the set continues after failures.
    /// The handler is never called if the condition of the set or of one of its actions doesn't hold or can't
    /// be evaluated; such an action always ends a chain. It is not called for an empty chain either. An
    /// uncalled handler is destroyed with the last running action.
    virtual void dispatch(const ActionSet &set, std::function<void()> completionHandler) = 0;
};

/// Runs action sets without blocking a thread on an action. The application shares one instance, which must
/// be owned by a shared_ptr.
class ActionDispatcher final : public ActionDispatcherProtocol,
                               public std::enable_shared_from_this<ActionDispatcher> {
public:
    /// Returns the runtime form of an item, never null.
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
    /// Pending actions of each chain that is in progress or ended early, by the identity of the set.
    /// Concurrent runs of one set share an entry.
    ThreadSafe<std::unordered_map<UUID, Actions>> _chainedActions;
};

} // namespace velmar
