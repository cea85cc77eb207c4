#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

/// Timers on a fake clock that the test advances. Not thread-safe. May be destroyed before its timers, which
/// then never fire.
class TestTimerScheduler final : public TimerScheduler {
public:
    [[nodiscard]] std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval,
                                                   std::function<void()> function) override;
    [[nodiscard]] std::unique_ptr<Timer> once(std::chrono::milliseconds delay,
                                              std::function<void()> function) override;

    /// Advances the clock. Runs all timers that become due, in the order of their time, including those that
    /// the functions create, stop or fire meanwhile.
    void advance(std::chrono::milliseconds time);

    /// Returns the time since construction.
    [[nodiscard]] std::chrono::milliseconds now() const noexcept { return now_; }
    /// Returns the number of timers that will still fire.
    [[nodiscard]] std::size_t runningTimers() const;

private:
    struct Entry;
    class TestTimer;

    std::unique_ptr<Timer> add(std::chrono::milliseconds delay, std::chrono::milliseconds interval,
                               std::function<void()> function);
    std::shared_ptr<Entry> nextDue(std::chrono::milliseconds end);

    std::chrono::milliseconds now_{0};
    std::vector<std::weak_ptr<Entry>> entries_; // in the order of creation
};

} // namespace velmar
