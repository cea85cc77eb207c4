#include <Dispatch/DispatchTimerScheduler.h>

#include <Dispatch/UncaughtHandler.h>

#include "DispatchPool.h"

#include <asio/steady_timer.hpp>

#include <mutex>
#include <system_error>
#include <utility>

namespace velmar {

namespace {

class Clock : public std::enable_shared_from_this<Clock> {
public:
    Clock(TimerFunction function, std::chrono::milliseconds interval)
        : function_(std::move(function)), interval_(interval), timer_(DispatchPool::shared().executor()) {}

    void start(std::chrono::milliseconds delay) {
        const std::lock_guard lock(mutex_);
        timer_.expires_after(delay);
        wait();
    }

    void stop() {
        function_.cancel();
        const std::lock_guard lock(mutex_);
        timer_.cancel();
    }

private:
    void wait() {
        timer_.async_wait([self = shared_from_this()](const std::error_code &error) {
            if (!error) {
                static_cast<void>(DispatchPool::shared().run(
                    [&] { runReportingUncaught("Timer", [&] { self->tick(); }); }));
            }
        });
    }

    void tick() {
        const std::lock_guard lock(mutex_);
        if (!function_.postTick() || interval_.count() == 0) {
            return;
        }
        // The next tick stays on the grid of the interval; missed ticks are skipped.
        const auto late = std::chrono::steady_clock::now() - timer_.expiry();
        timer_.expires_at(timer_.expiry() + interval_ * (1 + late / interval_));
        wait();
    }

    const TimerFunction function_;
    const std::chrono::milliseconds interval_;
    std::mutex mutex_;
    asio::steady_timer timer_; // Guarded by mutex_.
};

class ClockTimer final : public Timer {
public:
    ClockTimer(const TimerFunction &function, std::chrono::milliseconds delay,
               std::chrono::milliseconds interval)
        : function_(function), clock_(std::make_shared<Clock>(function, interval)) {
        clock_->start(delay);
    }
    ~ClockTimer() override { clock_->stop(); }
    ClockTimer(const ClockTimer &) = delete;
    ClockTimer &operator=(const ClockTimer &) = delete;

    void fire() override { function_.post(); }

private:
    TimerFunction function_;
    std::shared_ptr<Clock> clock_;
};

} // namespace

std::unique_ptr<Timer> DispatchTimerScheduler::start(TimerFunction function, std::chrono::milliseconds delay,
                                                     std::chrono::milliseconds interval) {
    return std::make_unique<ClockTimer>(function, delay, interval);
}

} // namespace velmar
