#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace velmar {

/// A running timer of the main thread's loop; destroying it stops it. Main thread only.
class Timer {
public:
    virtual ~Timer() = default;

    /// Runs the timer's function at once, apart from its schedule.
    virtual void fire() = 0;
};

/// Makes timers. The desktop's implementation runs on its event loop, the tests' one on a clock moved by
/// hand.
class TimerScheduler {
public:
    virtual ~TimerScheduler() = default;

    [[nodiscard]] virtual std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval,
                                                           std::function<void()> function) = 0;
    [[nodiscard]] virtual std::unique_ptr<Timer> once(std::chrono::milliseconds delay,
                                                      std::function<void()> function) = 0;
};

} // namespace velmar
