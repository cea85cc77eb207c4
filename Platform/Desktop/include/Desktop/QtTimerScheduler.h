#pragma once

#include <Dispatch/Timer.h>

#include <chrono>
#include <memory>

namespace velmar {

/// Timers on the event loop of the main thread, which also wakes those of dispatch queues. The application
/// must outlive the timers.
class QtTimerScheduler final : public TimerScheduler {
    [[nodiscard]] std::unique_ptr<Timer> start(TimerFunction function, std::chrono::milliseconds delay,
                                               std::chrono::milliseconds interval) override;
};

} // namespace velmar
