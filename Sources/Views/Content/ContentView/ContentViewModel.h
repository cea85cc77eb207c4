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

/// Interface of the views of the slides to the model.
class ContentViewControllerProtocol {
public:
    virtual ~ContentViewControllerProtocol() = default;

    /// Shows another slide.
    virtual void transition(int from, int to) = 0;

    /// Returns true while the previous slide is still visible.
    [[nodiscard]] virtual bool isTransitionUnderWay() const = 0;

    /// Returns the view model of the current slide, nullptr if there is none.
    [[nodiscard]] virtual std::shared_ptr<SlideViewModel> currentSlideViewModel() const = 0;
};

/// Validity of the side container, which can prevent the termination.
class ContentViewModelTerminationDelegate {
public:
    virtual ~ContentViewModelTerminationDelegate() = default;

    /// Returns true if the side container is valid or doesn't exist.
    [[nodiscard]] virtual bool isSideContainerValid() const = 0;
    virtual void showSideContainerWarnings() = 0;
};

/// The index and the validity of the current slide, and the moves between slides. Owned by a shared_ptr. Main
/// thread.
class ContentViewModel final : public SlideNavigationObserver,
                               public std::enable_shared_from_this<ContentViewModel> {
public:
    /// Configuration of the model, and the source of the actions' requests.
    struct Settings {
        Config<WindowSection::OnScreen> _onScreen = LaunchWindow::onScreen();
        Config<std::vector<SlideItem>> _onboardSlides{
            [](const Configuration &c) -> decltype(auto) { return c._slides(); }};
        Config<SlideItem> _menubarSlide{
            [](const Configuration &c) -> decltype(auto) { return c._menuBarSlideSection(); }};
        std::shared_ptr<SlidesActionManager> slidesActionManager = SlidesActionManager::shared();
    };

    /// `mainQueue`, `appTerminationManager` and `center` must outlive the model.
    ContentViewModel(MainQueue &mainQueue, AppTerminationManagerProtocol &appTerminationManager,
                     NotificationCenter &center = NotificationCenter::defaultCenter())
        : ContentViewModel(mainQueue, appTerminationManager, center, Settings()) {}
    ContentViewModel(MainQueue &mainQueue, AppTerminationManagerProtocol &appTerminationManager,
                     NotificationCenter &center, Settings settings);

    /// Not owned. The caller must reset the pointer to nullptr before the object is destroyed.
    void setController(ContentViewControllerProtocol *controller) noexcept { controller_ = controller; }
    void setTerminationDelegate(ContentViewModelTerminationDelegate *delegate) noexcept {
        terminationDelegate_ = delegate;
    }

    /// Notification centre of the navigation and of the slides' validity.
    [[nodiscard]] NotificationCenter &center() const noexcept { return center_; }

    /// Publishes the index and the validity, and registers for the notifications and the requests of actions.
    void setupNotifications();

    /// True if the slides are the one below the menu bar.
    [[nodiscard]] bool isMenuBarMode() const {
        return settings_._onScreen() == WindowSection::OnScreen::menuBar;
    }

    /// Slides of the present configuration in the mode of the launch.
    [[nodiscard]] std::shared_ptr<const std::vector<SlideItem>> slides() const;
    [[nodiscard]] int selectedSlideIndex() const noexcept { return _selectedSlideIndex(); }
    [[nodiscard]] bool isCurrentSlideValid() const noexcept { return _isCurrentSlideValid(); }

    /// Moves to a slide, unless it lies ahead and the current one is invalid. In both cases announces the
    /// position of the slide that is then current, before the controller begins the transition.
    void setSelectedIndex(int index, bool notifyingDelegate);

    /// Moves by a number of slides, forward or backward. An offset out of bounds is logged.
    void jumpWith(std::int64_t offset);

    /// Requests of actions. Any thread: the move is posted to the main queue.
    void navigateToIndex(std::int64_t index) override;
    void navigateByOffset(std::int64_t offset) override;

    /// Requests the termination, unless the current slide or the side container is invalid.
    void tryToQuitApplication();

    /// Runs `reload`, which may replace the configuration, then selects the first slide if the number of
    /// slides changed.
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
