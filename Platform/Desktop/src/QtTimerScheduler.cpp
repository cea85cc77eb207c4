#include <Desktop/QtTimerScheduler.h>

#include <Dispatch/UncaughtHandler.h>

#include <QTimer>

namespace velmar {

namespace {

class LoopTimer final : public Timer {
public:
    LoopTimer(std::chrono::milliseconds interval, bool isSingleShot, std::function<void()> function)
        : run_([function = std::move(function)] { runReportingUncaught("Timer", function); }) {
        timer_.setSingleShot(isSingleShot);
        // Captures a copy, because the function may destroy the timer.
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [run = run_] { run(); });
        timer_.start(interval);
    }

    void fire() override {
        const auto run = run_;
        run();
    }

private:
    std::function<void()> run_;
    QTimer timer_;
};

} // namespace

std::unique_ptr<Timer> QtTimerScheduler::repeating(std::chrono::milliseconds interval,
                                                   std::function<void()> function) {
    return std::make_unique<LoopTimer>(interval, false, std::move(function));
}

std::unique_ptr<Timer> QtTimerScheduler::once(std::chrono::milliseconds delay,
                                              std::function<void()> function) {
    return std::make_unique<LoopTimer>(delay, true, std::move(function));
}

} // namespace velmar
