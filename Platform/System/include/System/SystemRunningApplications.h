#pragma once

#include <System/ProcessWatch.h>
#include <System/RunningApplications.h>

#include <Dispatch/MainQueue.h>
#include <Dispatch/Timer.h>

#include <chrono>
#include <functional>

namespace velmar {

/// The applications of this machine, by a ProcessWatch that looks twice a second, on a queue of its own. A
/// start is told within a second and a half, most of them within one.
class SystemRunningApplications final : public RunningApplications {
public:
    /// The main queue and the timers must outlive the observations. The places are asked for at each one, so
    /// that looking for them costs nothing where nobody observes.
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
