#pragma once

#include <Actions/SlideWindowPresenter.h>
#include <Base/Services.h>
#include <Testing/TestAlertPresenter.h>
#include <Testing/TestMainQueue.h>
#include <Testing/TestPasteboard.h>
#include <Testing/TestRunningApplications.h>
#include <Testing/TestSoundPlayer.h>
#include <Testing/TestTimerScheduler.h>
#include <Testing/TestUserNotifications.h>
#include <Variables/ContentManager.h>

#include <memory>
#include <utility>

namespace velmar {

/// Fake that stores the item of the open window.
struct TestSlideWindowPresenter final : SlideWindowPresenter {
    void open(std::shared_ptr<const ActionItems::OpenWindow> item) override { openItem = std::move(item); }
    void close() override { openItem.reset(); }

    std::shared_ptr<const ActionItems::OpenWindow> openItem; ///< Null while no window is open.
};

/// Services of a test: the fakes and a separate store of variables.
struct TestServices {
    TestServices() : TestServices(mainQueue) {}
    /// Uses another main queue in the bundle. `queue` must outlive the services.
    explicit TestServices(MainQueue &queue)
        : bundle{.mainQueue = queue,
                 .timers = timers,
                 .alerts = alerts,
                 .pasteboard = pasteboard,
                 .sounds = sounds,
                 .notifications = notifications,
                 .windows = windows,
                 .runningApplications = runningApplications,
                 .variables = variables} {}
    TestServices(const TestServices &) = delete;
    TestServices &operator=(const TestServices &) = delete;

    TestMainQueue mainQueue;
    TestTimerScheduler timers;
    TestAlertPresenter alerts;
    TestPasteboard pasteboard;
    TestSoundPlayer sounds;
    TestUserNotifications notifications;
    TestSlideWindowPresenter windows;
    TestRunningApplications runningApplications;
    std::shared_ptr<ContentManager> variables = std::make_shared<ContentManager>();
    Services bundle;
};

} // namespace velmar
