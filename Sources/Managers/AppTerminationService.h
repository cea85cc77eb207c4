#pragma once

#include <Configuration/ActionSetItem.h>
#include <Dispatch/MainQueue.h>
#include <Managers/ActionSetManager.h>

#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// What performs the termination of the application that somebody has decided on. Any thread.
class AppTermination {
public:
    virtual ~AppTermination() = default;

    /// Returns at once. Each call begins anew, so that a termination that does not come to its end can be
    /// tried again.
    virtual void terminate() = 0;
};

/// Runs the sets of actions of the termination, all of them at the same time, and ends the application when
/// each has run to its end. One that never does keeps the application running (see
/// ActionDispatcherProtocol::dispatch).
class AppTerminationService final : public AppTermination {
public:
    /// `mainQueue` must outlive the process's queues; `terminateApplication` is called on it.
    AppTerminationService(
        MainQueue &mainQueue, std::function<void()> terminateApplication,
        std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared(),
        Config<std::vector<TriggeredActionSetItem>> actionSets = ActionSetManager::configuredActionSets());

    void terminate() override;

private:
    Config<std::vector<TriggeredActionSetItem>> _actionSets;
    MainQueue &mainQueue_;
    std::function<void()> terminateApplication_;
    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
};

} // namespace velmar
