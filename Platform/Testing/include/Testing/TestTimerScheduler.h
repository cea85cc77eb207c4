#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <cstddef>
#include <memory>
#include <vector>

namespace velmar {

/// Timers on a clock that the test moves. One thread; the scheduler may be destroyed before its timers, which
/// then never tick.
class TestTimerScheduler final : public TimerScheduler {
public:
    /// Moves the clock on. The functions of timers that fall due run in the order of their time, at their
    /// time; timers that the functions make, stop or fire take part. A function of a main queue runs inside
    /// this call, so the caller must be on the main thread; the call waits for one of a dispatch queue.
    void advance(std::chrono::milliseconds time);

    /// Returns the time since construction.
    [[nodiscard]] std::chrono::milliseconds now() const noexcept { return now_; }
    /// Timers that will still tick.
    [[nodiscard]] std::size_t runningTimers() const;

private:
    struct Entry;
    class TestTimer;

    [[nodiscard]] std::unique_ptr<Timer> start(TimerFunction function, std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval) override;
    std::shared_ptr<Entry> nextDue(std::chrono::milliseconds end);

    std::chrono::milliseconds now_{0};
    std::vector<std::weak_ptr<Entry>> entries_; // In the order of making.
};

} // namespace velmar
