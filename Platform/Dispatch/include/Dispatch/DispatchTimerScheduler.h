#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <memory>

namespace velmar {

/// Makes timers on the steady clock, driven by the process-wide pool. They need no event loop; a blocked main
/// thread delays only the functions of its own queue. The clock doesn't advance while the computer sleeps. No
/// timer ticks after DispatchQueue::shutdown. Thread-safe.
///
/// Making a timer throws std::system_error if the system has no descriptors left for the clock.
class DispatchTimerScheduler final : public TimerScheduler {
    [[nodiscard]] std::unique_ptr<Timer> start(TimerFunction function, std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval) override;
};

} // namespace velmar
