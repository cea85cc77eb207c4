#pragma once

#include <Dispatch/AnyQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// The function of a timer and the queue on which it runs, independent of the timer's clock. For
/// implementations of TimerScheduler. A handle: copies share the function. Thread-safe.
class TimerFunction {
public:
    TimerFunction(AnyQueue queue, std::function<void()> function);

    [[nodiscard]] const AnyQueue &queue() const noexcept;

    /// Posts a run to the queue.
    void post() const;

    /// Posts the run of a clock tick, unless the run of an earlier tick is still pending or in progress.
    /// Returns false if cancelled: the clock can stop.
    bool postTick() const;

    /// Runs the function on the calling thread, which must be the queue's. Does nothing if cancelled.
    /// Exceptions of the function are reported.
    void run() const;

    /// Cancels the function: no further run begins, and the queue is not used again. Destroys the captures;
    /// if a run is in progress, that run destroys them when it ends. Doesn't wait for the run.
    void cancel() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
