#pragma once

#include <memory>

namespace velmar {

class AlertPresenter;
class ContentManagerProtocol;
class MainQueue;
class RunningApplications;
class SimplePasteboard;
class SlideWindowPresenter;
class SoundPlayer;
class TimerScheduler;
class UserNotifications;

/// The services of a process, created once by `main`. The bundle and the services outlive every object that
/// uses them. An object that needs several services takes the bundle; an object that needs a single service
/// takes that service.
struct Services {
    MainQueue &mainQueue;
    TimerScheduler &timers;
    AlertPresenter &alerts;
    SimplePasteboard &pasteboard;
    SoundPlayer &sounds;
    UserNotifications &notifications;
    SlideWindowPresenter &windows;
    RunningApplications &runningApplications;
    std::shared_ptr<ContentManagerProtocol> variables; ///< Never null.
};

} // namespace velmar
