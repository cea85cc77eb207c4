#pragma once

#include <Dispatch/AnyQueue.h>
#include <Dispatch/TimerFunction.h>

#include <chrono>
#include <functional>
#include <memory>

namespace velmar {

/// A timer. Its function runs on the queue given when the timer was made. Any thread, one at a time.
///
/// Destroying the timer stops it. On the timer's own queue, the function doesn't run any more, not even if a
/// run was already posted; a function may destroy its own timer. On another thread, or if the queue is
/// DispatchQueue::global(), a run that is starting or in progress completes and isn't waited for; no later
/// one begins. The function's captures are destroyed with the timer, or at the end of such a run.
class Timer {
public:
    virtual ~Timer() = default;

    /// Posts the function to its queue now, independently of the schedule.
    virtual void fire() = 0;
};

/// Makes timers. A main queue given to a timer must outlive it. Exceptions of a timer's function are reported
/// (`Dispatch/UncaughtHandler.h`), and the timer continues. Thread-safe, unless the implementation states
/// otherwise.
class TimerScheduler {
public:
    virtual ~TimerScheduler() = default;

    /// Makes a timer that posts its function once per interval, the first time after one interval. A run that
    /// is due while the previous one is pending or in progress is skipped. The interval is clamped to 1 ms to
    /// 24 days.
    [[nodiscard]] std::unique_ptr<Timer> repeating(AnyQueue queue, std::chrono::milliseconds interval,
                                                   std::function<void()> function);

    /// Makes a timer that posts its function once, after the delay. The delay is clamped to 0 to 24 days.
    [[nodiscard]] std::unique_ptr<Timer> once(AnyQueue queue, std::chrono::milliseconds delay,
                                              std::function<void()> function);

private:
    /// Starts a clock that first ticks after `delay`, which is at most 24 days, and then once per `interval`,
    /// unless that is 0.
    [[nodiscard]] virtual std::unique_ptr<Timer>
    start(TimerFunction function, std::chrono::milliseconds delay, std::chrono::milliseconds interval) = 0;
};

} // namespace velmar
