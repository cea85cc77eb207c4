#pragma once

#include <Dispatch/AnyQueue.h>

#include <functional>
#include <memory>

namespace velmar {

/// The function of a timer and the queue on which it runs: the part of a timer that doesn't depend on its
/// clock, for implementations of TimerScheduler. A handle: copies are the same function. Any thread.
class TimerFunction {
public:
    TimerFunction(AnyQueue queue, std::function<void()> function);

    [[nodiscard]] const AnyQueue &queue() const noexcept;

    /// Posts a run to the queue.
    void post() const;

    /// Posts the run of a clock's tick, unless that of an earlier tick still waits or runs. False if
    /// cancelled: the clock can stop.
    bool postTick() const;

    /// Runs the function on the calling thread, which must be the queue's, unless it is cancelled. What it
    /// throws is reported.
    void run() const;

    /// Ends the function: no run begins any more, and the queue isn't used again. The captures are destroyed
    /// here, or by the run that is under way when that ends. Doesn't wait for it.
    void cancel() const;

private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace velmar
