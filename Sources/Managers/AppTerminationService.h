#pragma once

#include <Configuration/ActionSetItem.h>
#include <Dispatch/MainQueue.h>
#include <Dispatch/ThreadSafe.h>
#include <Managers/ActionSetManager.h>

#include <atomic>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// What performs the termination of the application that somebody has decided on. Any thread.
class AppTermination {
public:
    virtual ~AppTermination() = default;

    /// Returns at once. Does nothing while a former call is under way; one that has stopped before its end
    /// can be tried again.
    virtual void terminate() = 0;
};

/// Runs the sets of actions of the termination, all of them at the same time, and ends the application when
/// each has run to its end. One that never does keeps the application running (see
/// ActionDispatcherProtocol::dispatch); a next call then runs all of them again.
class AppTerminationService final : public AppTermination {
public:
    /// `mainQueue` must outlive the process's queues; `terminateApplication` is called on it.
    AppTerminationService(
        MainQueue &mainQueue, std::function<void()> terminateApplication,
        std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared(),
        Config<std::vector<TriggeredActionSetItem>> actionSets = ActionSetManager::configuredActionSets());

    void terminate() override;

private:
    using SetsLeft = std::atomic<std::size_t>;

    Config<std::vector<TriggeredActionSetItem>> _actionSets;
    MainQueue &mainQueue_;
    std::function<void()> terminateApplication_;
    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
    ThreadSafe<std::weak_ptr<SetsLeft>> _underWay; // Held by the sets that run.
};

} // namespace velmar
