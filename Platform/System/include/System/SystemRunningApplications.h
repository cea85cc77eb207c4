#pragma once

#include <System/ProcessWatch.h>
#include <System/RunningApplications.h>

#include <Dispatch/MainQueue.h>
#include <Dispatch/Timer.h>

#include <chrono>
#include <functional>

namespace velmar {

/// The applications of this machine. A ProcessWatch looks twice a second on its own queue. Most starts are
/// reported within one second, all within one and a half.
class SystemRunningApplications final : public RunningApplications {
public:
    /// The main queue and the timers must outlive the observations. `places` is called for each observation,
    /// so that it costs nothing before.
    SystemRunningApplications(MainQueue &mainQueue, TimerScheduler &timers,
                              std::function<ProcessWatch::Places()> places);

    [[nodiscard]] std::unique_ptr<Observation> observe(Observer observer) override;

    static constexpr std::chrono::milliseconds interval{500};

private:
    class Watching;
    MainQueue &mainQueue_;
    TimerScheduler &timers_;
    std::function<ProcessWatch::Places()> places_;
};

} // namespace velmar
