#pragma once

#include <Dispatch/MainQueue.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <thread>

namespace velmar {

/// A main queue with a loop of its own, for programs without a toolkit. The thread that makes the queue is
/// its main thread: functions run there, inside `run`, `runUntilEmpty` or `runUntil`, which throw
/// std::logic_error on any other thread. A function may call these, too. Functions that still wait when the
/// queue is destroyed never run.
class MainThreadQueue : public MainQueue {
public:
    MainThreadQueue();
    ~MainThreadQueue() override;

    void async(std::function<void()> function) override;
    [[nodiscard]] bool isCurrent() const override { return std::this_thread::get_id() == mainThread_; }

    /// Runs functions as they come until `stop`. What one throws is reported, and the loop goes on: this is
    /// the loop of a service.
    void run();

    /// Ends one call of `run`, the current or else the next one, when the functions posted before have run.
    /// Any thread.
    void stop();

    /// Runs the functions that wait, and those that they post, until none waits. Returns the number of
    /// functions run. What one throws reaches the caller, and those behind it still wait.
    std::size_t runUntilEmpty();

    /// Runs functions as they come until the condition holds, which is evaluated first and after each
    /// function. False if the time is up before. What a function throws reaches the caller: nothing may ever
    /// fulfil the condition after it.
    [[nodiscard]] bool runUntil(const std::function<bool()> &condition,
                                std::chrono::milliseconds timeout = std::chrono::seconds(10));

private:
    void requireMainThread() const;

    struct Loop;
    const std::thread::id mainThread_ = std::this_thread::get_id();
    bool isStopped_ = false; // Main thread.
    std::unique_ptr<Loop> loop_;
};

} // namespace velmar
