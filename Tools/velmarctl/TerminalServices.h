#pragma once

#include <TerminalInterface.h>

#include <Base/Services.h>
#include <Dispatch/DispatchTimerScheduler.h>

#include <istream>
#include <memory>
#include <utility>

namespace velmar {

/// The services of a process without an interface. A request to the desktop is reported as a line instead.
class TerminalServices {
public:
    /// The queue and the input must outlive the services.
    TerminalServices(MainQueue &mainQueue, std::istream &in, const SayLine &say,
                     std::shared_ptr<ContentManagerProtocol> variables)
        : alerts_(mainQueue, in, say),
          pasteboard_(say),
          sounds_(mainQueue, say),
          notifications_(mainQueue, say),
          windows_(say),
          bundle_{.mainQueue = mainQueue,
                  .timers = timers_,
                  .alerts = alerts_,
                  .pasteboard = pasteboard_,
                  .sounds = sounds_,
                  .notifications = notifications_,
                  .windows = windows_,
                  .runningApplications = runningApplications_,
                  .variables = std::move(variables)} {}
    TerminalServices(const TerminalServices &) = delete;
    TerminalServices &operator=(const TerminalServices &) = delete;

    [[nodiscard]] const Services &bundle() const noexcept { return bundle_; }

private:
    DispatchTimerScheduler timers_;
    TerminalAlertPresenter alerts_;
    TerminalPasteboard pasteboard_;
    TerminalSoundPlayer sounds_;
    TerminalUserNotifications notifications_;
    TerminalWindows windows_;
    NoRunningApplications runningApplications_;
    Services bundle_;
};

} // namespace velmar
