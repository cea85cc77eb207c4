#pragma once

#include <System/ProcessWatch.h>
#include <System/RunningApplications.h>

#include <Dispatch/MainQueue.h>
#include <Dispatch/Timer.h>

#include <chrono>

namespace velmar {

/// The applications of this machine, by a ProcessWatch that looks twice a second, on a queue of its own. A
/// start is told within a second and a half, most of them within one.
class SystemRunningApplications final : public RunningApplications {
public:
    /// The main queue and the timers must outlive the observations.
    SystemRunningApplications(MainQueue &mainQueue, TimerScheduler &timers, ProcessWatch::Places places);

    [[nodiscard]] std::unique_ptr<Observation> observe(Observer observer) override;

    static constexpr std::chrono::milliseconds interval{500};

private:
    class Watching;
    MainQueue &mainQueue_;
    TimerScheduler &timers_;
    ProcessWatch::Places places_;
};

} // namespace velmar
