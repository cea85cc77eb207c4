#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// Timers on a clock that the test moves. One thread; the scheduler may go before its timers, which then
/// rest.
class TestTimerScheduler final : public TimerScheduler {
public:
    [[nodiscard]] std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval,
                                                   std::function<void()> function) override;
    [[nodiscard]] std::unique_ptr<Timer> once(std::chrono::milliseconds delay,
                                              std::function<void()> function) override;

    /// Moves the clock on; whatever falls due meanwhile runs in the order of its time, at its time. Timers
    /// that the functions make, stop or fire take part.
    void advance(std::chrono::milliseconds time);

    /// Time since the scheduler was made.
    [[nodiscard]] std::chrono::milliseconds now() const noexcept { return now_; }
    /// Timers that will still fire.
    [[nodiscard]] std::size_t runningTimers() const;

private:
    struct Entry;
    class TestTimer;

    std::unique_ptr<Timer> add(std::chrono::milliseconds delay, std::chrono::milliseconds interval,
                               std::function<void()> function);
    std::shared_ptr<Entry> nextDue(std::chrono::milliseconds end);

    std::chrono::milliseconds now_{0};
    std::vector<std::weak_ptr<Entry>> entries_; // in the order of making
};

} // namespace velmar
