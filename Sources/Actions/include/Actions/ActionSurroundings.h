#pragma once

#include <Actions/SlidesActionManager.h>
#include <Variables/ContentManager.h>

#include <functional>
#include <memory>

namespace velmar {

class AlertPresenter;
class MainQueue;
class SimplePasteboard;
class SlideWindowPresenter;
class SoundPlayer;
class UserNotifications;

/// What actions work with. The references outlive every action.
struct ActionSurroundings {
    MainQueue &mainQueue;
    AlertPresenter &alerts;
    SimplePasteboard &pasteboard;
    SoundPlayer &sounds;
    SlideWindowPresenter &windows;
    UserNotifications &notifications;
    /// Begins the termination of the application, whatever would hold a quit back. Any thread.
    std::function<void()> terminateApp;
    std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared();
    std::shared_ptr<SlidesActionManager> slides = SlidesActionManager::shared();
};

} // namespace velmar
