#pragma once

#include <Dispatch/MainQueue.h>

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <thread>

namespace velmar {

/// A main queue for where there is no event loop: its functions run while the main thread says so. The thread
/// that makes it is its main thread; only that one may run it. What a function throws reaches whoever runs
/// it.
class MainThreadQueue : public MainQueue {
public:
    void async(std::function<void()> function) override;
    [[nodiscard]] bool isCurrent() const override { return std::this_thread::get_id() == mainThread_; }

    /// Runs what waits, and what that posts in its turn, until nothing waits; gives the number of functions
    /// run.
    std::size_t runUntilEmpty();

    /// Runs functions as they come, also from other threads, until the condition holds; it is tried at first
    /// and after each function. False if the time is up before.
    [[nodiscard]] bool runUntil(const std::function<bool()> &condition,
                                std::chrono::milliseconds timeout = std::chrono::seconds(10));

private:
    // Waits for a function and runs it; false if none has come until then.
    bool runNext(std::chrono::steady_clock::time_point deadline);

    const std::thread::id mainThread_ = std::this_thread::get_id();
    std::mutex mutex_;
    std::condition_variable posted_;
    std::deque<std::function<void()>> functions_;
};

} // namespace velmar
