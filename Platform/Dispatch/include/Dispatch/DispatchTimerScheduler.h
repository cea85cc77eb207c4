#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <memory>

namespace velmar {

/// Timers on the steady clock, watched by the process-wide pool: they need no event loop, and a blocked main
/// thread delays only the functions of its own queue. The clock stands still while the computer sleeps. After
/// DispatchQueue::shutdown no timer ticks. Any thread.
///
/// Making a timer throws std::system_error where the system has no descriptors left for the clock.
class DispatchTimerScheduler final : public TimerScheduler {
    [[nodiscard]] std::unique_ptr<Timer> start(TimerFunction function, std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval) override;
};

} // namespace velmar
