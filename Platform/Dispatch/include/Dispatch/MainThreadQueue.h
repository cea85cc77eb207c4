#pragma once

#include <Dispatch/MainQueue.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <thread>

namespace velmar {

/// A main queue with its own loop, for programs without a toolkit. The thread that makes the queue is its
/// main thread. Functions run there, inside `run`, `runUntilEmpty` or `runUntil`, which throw
/// std::logic_error on any other thread. A function may call these too. Functions still pending when the
/// queue is destroyed never run.
class MainThreadQueue : public MainQueue {
public:
    MainThreadQueue();
    ~MainThreadQueue() override;

    void async(std::function<void()> function) override;
    [[nodiscard]] bool isCurrent() const override { return std::this_thread::get_id() == mainThread_; }

    /// Runs functions as they arrive until `stop`. Exceptions of a function are reported, and the loop
    /// continues: this is the loop of a service.
    void run();

    /// Ends one call of `run`, the current or otherwise the next one, after the functions posted before.
    /// Thread-safe.
    void stop();

    /// Runs the pending functions, and those that they post, until none is left. Returns the number of
    /// functions run. An exception of a function reaches the caller; the functions behind it stay pending.
    std::size_t runUntilEmpty();

    /// Runs functions as they arrive until the condition holds. The condition is evaluated first and after
    /// each function. Returns false on timeout. An exception of a function reaches the caller, because the
    /// condition may never hold after it.
    [[nodiscard]] bool runUntil(const std::function<bool()> &condition,
                                std::chrono::milliseconds timeout = std::chrono::seconds(10));

private:
    void requireMainThread() const;

    struct Loop;
    const std::thread::id mainThread_ = std::this_thread::get_id();
    bool isStopped_ = false; // Main thread only.
    std::unique_ptr<Loop> loop_;
};

} // namespace velmar
