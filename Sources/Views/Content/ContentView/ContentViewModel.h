#pragma once

#include <Actions/SlidesActionManager.h>
#include <Configuration/Configuration.h>
#include <Core/LaunchWindow.h>
#include <Dispatch/MainQueue.h>
#include <Foundation/NotificationCenter.h>
#include <Settings/Config.h>
#include <Termination/AppTerminationManager.h>
#include <Variables/ContentUpdater.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace velmar {

class SlideViewModel;

/// The views of the slides, as the model uses them.
class ContentViewControllerProtocol {
public:
    virtual ~ContentViewControllerProtocol() = default;

    /// Puts another slide on show.
    virtual void transition(int from, int to) = 0;

    /// True while the user still sees the slide before.
    [[nodiscard]] virtual bool isTransitionUnderWay() const = 0;

    /// Of the slide on show; null while there is none.
    [[nodiscard]] virtual std::shared_ptr<SlideViewModel> currentSlideViewModel() const = 0;
};

/// Who may hold the quit back for what stands beside the slides.
class ContentViewModelTerminationDelegate {
public:
    virtual ~ContentViewModelTerminationDelegate() = default;

    /// True also where there is no side container.
    [[nodiscard]] virtual bool isSideContainerValid() const = 0;
    virtual void showSideContainerWarnings() = 0;
};

/// Which slide is the current one, and whether the user may leave it. Made as a shared_ptr. Main thread.
class ContentViewModel final : public SlideNavigationObserver,
                               public std::enable_shared_from_this<ContentViewModel> {
public:
    /// What the model reads of the configuration, and whom it listens to.
    struct Settings {
        Config<WindowSection::OnScreen> _onScreen = LaunchWindow::onScreen();
        Config<std::vector<SlideItem>> _onboardSlides{
            [](const Configuration &c) -> decltype(auto) { return c._slides(); }};
        Config<SlideItem> _menubarSlide{
            [](const Configuration &c) -> decltype(auto) { return c._menuBarSlideSection(); }};
        /// Who passes the requests of actions on.
        std::shared_ptr<SlidesActionManager> slidesActionManager = SlidesActionManager::shared();
    };

    /// The queue, the manager and the centre must outlive the model.
    ContentViewModel(MainQueue &mainQueue, AppTerminationManagerProtocol &appTerminationManager,
                     NotificationCenter &center = NotificationCenter::defaultCenter())
        : ContentViewModel(mainQueue, appTerminationManager, center, Settings()) {}
    ContentViewModel(MainQueue &mainQueue, AppTerminationManagerProtocol &appTerminationManager,
                     NotificationCenter &center, Settings settings);

    /// Held weakly, as it were: both are taken back, with null, by whoever they are before they go.
    void setController(ContentViewControllerProtocol *controller) noexcept { controller_ = controller; }
    void setTerminationDelegate(ContentViewModelTerminationDelegate *delegate) noexcept {
        terminationDelegate_ = delegate;
    }

    /// Where the navigation and the slides tell of themselves.
    [[nodiscard]] NotificationCenter &center() const noexcept { return center_; }
    [[nodiscard]] MainQueue &mainQueue() const noexcept { return mainQueue_; }

    /// Begins to follow the navigation's notifications and the requests of actions, and to publish what the
    /// model knows.
    void setupNotifications();

    /// Whether the one slide is that below the menu bar.
    [[nodiscard]] bool isMenuBarMode() const {
        return settings_._onScreen() == WindowSection::OnScreen::menuBar;
    }

    /// The slides of the present configuration, for the mode.
    [[nodiscard]] std::shared_ptr<const std::vector<SlideItem>> slides() const;
    [[nodiscard]] int selectedSlideIndex() const noexcept { return _selectedSlideIndex(); }
    [[nodiscard]] bool isCurrentSlideValid() const noexcept { return _isCurrentSlideValid(); }

    /// Moves to a slide, unless it lies ahead and the current one is invalid. In both cases announces the
    /// position of the slide that is then current, before the controller begins the transition.
    void setSelectedIndex(int index, bool notifyingDelegate);

    /// Moves by a number of slides, forward or backward. An offset that leads nowhere is logged.
    void jumpWith(std::int64_t offset);

    /// The requests of actions, on their threads: each is followed on the main thread, later.
    void navigateToIndex(std::int64_t index) override;
    void navigateByOffset(std::int64_t offset) override;

    /// Quits unless the current slide or the side container is not yet right.
    void tryToQuitApplication();

    /// Runs `reload`, which may replace the configuration, and goes back to the first slide if their number
    /// changed.
    void reloadSlidesIfCountChanged(const std::function<void()> &reload);

private:
    void goToPreviousSlide();
    void goToNextSlide();
    void moveForAction(int index);
    void announcePosition();
    void showWarningsOfCurrentSlide();
    [[nodiscard]] int slidesCount() const { return static_cast<int>(slides()->size()); }

    MainQueue &mainQueue_;
    AppTerminationManagerProtocol &appTerminationManager_;
    NotificationCenter &center_;
    Settings settings_;
    ContentViewControllerProtocol *controller_ = nullptr;
    ContentViewModelTerminationDelegate *terminationDelegate_ = nullptr;
    std::vector<NotificationObserver> observers_;
    ContentUpdater<bool> _isCurrentSlideValid{true, GeneralSection::Placeholders::currentSlideValid};
    ContentUpdater<int> _selectedSlideIndex{0, GeneralSection::Placeholders::currentSlideIndex};
};

} // namespace velmar
