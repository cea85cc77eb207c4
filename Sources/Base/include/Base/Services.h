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

/// The services of a process, made once, by its `main`. The bundle and all that it refers to outlive every
/// object that is given it. An object that needs several services takes the bundle, one that needs a single
/// service takes that one.
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
