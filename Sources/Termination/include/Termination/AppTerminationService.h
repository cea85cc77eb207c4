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

/// Interface that performs the termination of the application once it is decided. Thread-safe.
class AppTermination {
public:
    virtual ~AppTermination() = default;

    /// Starts the termination without blocking. Does nothing while a former attempt is in progress; an
    /// attempt that stopped before its end or takes too long can be repeated.
    virtual void terminate() = 0;
};

/// Runs the termination action sets concurrently and ends the application once each of them has ended. A set
/// that never ends keeps the application running (see ActionDispatcherProtocol::dispatch). The next call then
/// runs all sets again if none of them is running any more or `patience` has elapsed.
class AppTerminationService final : public AppTermination {
public:
    /// `terminateApplication` is called on `mainQueue`, which must outlive the process's queues.
    AppTerminationService(
        MainQueue &mainQueue, std::function<void()> terminateApplication,
        std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared(),
        Config<std::vector<TriggeredActionSetItem>> actionSets = ActionSetManager::configuredActionSets(),
        std::chrono::seconds patience = std::chrono::seconds(10));

    void terminate() override;

private:
    using SetsLeft = std::atomic<std::size_t>;
    struct Attempt {
        std::weak_ptr<SetsLeft> left; // Owned by the running sets.
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
