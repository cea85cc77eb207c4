#pragma once

#include <Dispatch/Timer.h>

#include <functional>
#include <memory>

namespace velmar {

/// Timers on the main thread's event loop. Exceptions of a timer's function are reported as uncaught. A
/// function may destroy its own timer.
class QtTimerScheduler final : public TimerScheduler {
public:
    [[nodiscard]] std::unique_ptr<Timer> repeating(std::chrono::milliseconds interval,
                                                   std::function<void()> function) override;
    [[nodiscard]] std::unique_ptr<Timer> once(std::chrono::milliseconds delay,
                                              std::function<void()> function) override;
};

} // namespace velmar
