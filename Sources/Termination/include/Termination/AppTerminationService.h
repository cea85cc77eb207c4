#pragma once

#include <Actions/ActionSetManager.h>
#include <Configuration/ActionSetItem.h>
#include <Dispatch/MainQueue.h>
#include <Dispatch/ThreadSafe.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// What performs the termination of the application that somebody has decided on. Any thread.
class AppTermination {
public:
    virtual ~AppTermination() = default;

    /// Returns at once. Does nothing while a former call is under way; one that has stopped before its end,
    /// or lasts too long, can be tried again.
    virtual void terminate() = 0;
};

/// Runs the sets of actions of the termination, all of them at the same time, and ends the application when
/// each has run to its end. One that never does keeps the application running (see
/// ActionDispatcherProtocol::dispatch); a next call then runs all of them again, at once if nothing of them
/// runs any more, and otherwise when the patience is over.
class AppTerminationService final : public AppTermination {
public:
    /// `mainQueue` must outlive the process's queues; `terminateApplication` is called on it.
    AppTerminationService(
        MainQueue &mainQueue, std::function<void()> terminateApplication,
        std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared(),
        Config<std::vector<TriggeredActionSetItem>> actionSets = ActionSetManager::configuredActionSets(),
        std::chrono::seconds patience = std::chrono::seconds(10));

    void terminate() override;

private:
    using SetsLeft = std::atomic<std::size_t>;
    struct Attempt {
        std::weak_ptr<SetsLeft> left; // Held by the sets that run.
        std::chrono::steady_clock::time_point begin;
    };

    Config<std::vector<TriggeredActionSetItem>> _actionSets;
    MainQueue &mainQueue_;
    std::function<void()> terminateApplication_;
    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
    std::chrono::seconds patience_;
    ThreadSafe<Attempt> _underWay;
};

} // namespace velmar
