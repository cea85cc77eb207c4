#pragma once

#include <Dispatch/AnyQueue.h>
#include <Dispatch/TimerFunction.h>

#include <chrono>
#include <functional>
#include <memory>

namespace velmar {

/// A timer. Its function runs on the queue that the timer was made with. Any thread, one at a time.
///
/// Destroying the timer stops it. If that happens on its queue, the function doesn't run any more, not even
/// if a run was posted before; a function may destroy its own timer. If that happens on another thread, or
/// the queue is DispatchQueue::global(), a run that is beginning or under way goes on to its end, isn't
/// waited for, and no later one begins. The function's captures are destroyed with the timer, or at the end
/// of such a run.
class Timer {
public:
    virtual ~Timer() = default;

    /// Posts the function to its queue now, apart from the schedule.
    virtual void fire() = 0;
};

/// Makes timers. A main queue that is given to a timer must outlive it. What a timer's function throws is
/// reported (`Dispatch/UncaughtHandler.h`), and the timer goes on. Any thread, unless the implementation says
/// otherwise.
class TimerScheduler {
public:
    virtual ~TimerScheduler() = default;

    /// A timer that posts its function once in each interval, for the first time when one has passed. A run
    /// that falls due while the one before it still waits or runs is left out. The interval is at least 1 ms;
    /// above 24 days it is 24 days.
    [[nodiscard]] std::unique_ptr<Timer> repeating(AnyQueue queue, std::chrono::milliseconds interval,
                                                   std::function<void()> function);

    /// A timer that posts its function once, after the delay. A negative delay is none; above 24 days it is
    /// 24 days.
    [[nodiscard]] std::unique_ptr<Timer> once(AnyQueue queue, std::chrono::milliseconds delay,
                                              std::function<void()> function);

private:
    /// Starts a clock with a first tick after `delay`, which is at most 24 days, and, if `interval` isn't 0,
    /// with more of them at that interval.
    [[nodiscard]] virtual std::unique_ptr<Timer>
    start(TimerFunction function, std::chrono::milliseconds delay, std::chrono::milliseconds interval) = 0;
};

} // namespace velmar
