#include <Views/Content/ContentView/ContentViewModel.h>

#include <Base/NavigationNotifications.h>
#include <Views/Content/Slides/SlideViewModel.h>
#include <Views/Navigation/NavigationState.h>

#include <logger/Logger.h>

#include <fmt/format.h>

#include <string>
#include <utility>

namespace velmar {

ContentViewModel::ContentViewModel(MainQueue &mainQueue, AppTerminationManagerProtocol &appTerminationManager,
                                   NotificationCenter &center, Settings settings)
    : mainQueue_(mainQueue),
      appTerminationManager_(appTerminationManager),
      center_(center),
      settings_(std::move(settings)) {}

void ContentViewModel::setupNotifications() {
    // Published before the first views, which may show the variables.
    _isCurrentSlideValid.set(_isCurrentSlideValid());
    _selectedSlideIndex.set(_selectedSlideIndex());
    using namespace NavigationNotifications;
    const auto observe = [this](std::string_view name, NotificationCenter::Handler handler) {
        observers_.push_back(center_.addObserver(std::string(name), std::move(handler)));
    };
    observe(willNavigateToNextSlide, [this] { goToNextSlide(); });
    observe(willNavigateToPreviousSlide, [this] { goToPreviousSlide(); });
    observe(slideHasInvalidMandatoryElements, [this] { _isCurrentSlideValid.set(false); });
    observe(allMandatoryElementsInSlideAreValid, [this] { _isCurrentSlideValid.set(true); });
    settings_.slidesActionManager->addObserver(weak_from_this());
}

std::shared_ptr<const std::vector<SlideItem>> ContentViewModel::slides() const {
    if (isMenuBarMode()) {
        return std::make_shared<const std::vector<SlideItem>>(1, settings_._menubarSlide());
    }
    return settings_._onboardSlides.wrappedValue();
}

void ContentViewModel::setSelectedIndex(int index, bool notifyingDelegate) {
    const int count = slidesCount();
    if (count == 0 || index > count) {
        return;
    }
    const int old = _selectedSlideIndex();
    const bool isHeldBack = index > old && !_isCurrentSlideValid();
    if (isHeldBack) {
        showWarningsOfCurrentSlide();
        Logger::warning(
            "Transition to the next slides prevented since the slide contains invalid mandatory elements");
    } else {
        _selectedSlideIndex.set(index);
    }
    announcePosition();
    if (!isHeldBack && notifyingDelegate && controller_ != nullptr) {
        controller_->transition(old, index);
    }
}

void ContentViewModel::jumpWith(std::int64_t offset) {
    const int index = _selectedSlideIndex();
    const int count = slidesCount();
    if (offset < -index || offset >= count - index) {
        Logger::warning([&] {
            return fmt::format("Slide jump with offset {} at slide {} is out of bounds. Slides count: {}.",
                               offset, index, count);
        });
        return;
    }
    moveForAction(index + static_cast<int>(offset));
}

void ContentViewModel::moveForAction(int index) {
    // Buttons hidden by the current slide must not stay hidden on the next one. A press resets them itself.
    center_.post(NavigationNotifications::evaluateButtonsHide);
    setSelectedIndex(index, true);
}

void ContentViewModel::navigateToIndex(std::int64_t index) {
    mainQueue_.async([model = weak_from_this(), index] {
        const auto self = model.lock();
        if (!self) {
            return;
        }
        // The slides may be fewer than when the action was checked.
        const int count = self->slidesCount();
        if (index < 0 || index >= count) {
            Logger::warning(
                [&] { return fmt::format("There is no slide {}. Slides count: {}.", index, count); });
            return;
        }
        self->moveForAction(static_cast<int>(index));
    });
}

void ContentViewModel::navigateByOffset(std::int64_t offset) {
    mainQueue_.async([model = weak_from_this(), offset] {
        if (const auto self = model.lock()) {
            self->jumpWith(offset);
        }
    });
}

void ContentViewModel::announcePosition() {
    const auto present = slides();
    const auto position = static_cast<std::size_t>(_selectedSlideIndex());
    if (position >= present->size()) {
        return;
    }
    const SlideItem &slide = (*present)[position];
    if (slide._hidePreviousButton()) {
        center_.post(NavigationNotifications::currentSlideWantsToHidePreviousButton);
    }
    if (slide._hideNextButton()) {
        center_.post(NavigationNotifications::currentSlideWantsToHideNextButton);
    }
    center_.post(slideArrival(slidePosition(position, present->size())).announcement);
}

void ContentViewModel::goToPreviousSlide() {
    Logger::debug("Will transition to previous slide");
    const int target = _selectedSlideIndex() - 1;
    if (target < 0) {
        Logger::warning("No previous slide to transition to");
    } else {
        setSelectedIndex(target, true);
    }
}

void ContentViewModel::goToNextSlide() {
    Logger::debug("Will transition to next slide");
    const int target = _selectedSlideIndex() + 1;
    if (target < slidesCount()) {
        setSelectedIndex(target, true);
    } else if (controller_ != nullptr && controller_->isTransitionUnderWay()) {
        // The press was meant for the slide that is leaving.
        Logger::debug("No quit before the last slide is on show");
    } else {
        tryToQuitApplication();
    }
}

void ContentViewModel::tryToQuitApplication() {
    if (!_isCurrentSlideValid()) {
        showWarningsOfCurrentSlide();
        Logger::warning("App termination prevented since the slide contains invalid mandatory elements");
        return;
    }
    if (terminationDelegate_ != nullptr && !terminationDelegate_->isSideContainerValid()) {
        terminationDelegate_->showSideContainerWarnings();
        // The user may have corrected the input during the warning.
        if (!terminationDelegate_->isSideContainerValid()) {
            return;
        }
    }
    appTerminationManager_.tryToQuitApplication();
}

void ContentViewModel::reloadSlidesIfCountChanged(const std::function<void()> &reload) {
    const int before = slidesCount();
    reload();
    if (slidesCount() != before) {
        setSelectedIndex(0, false);
    }
    center_.post(NavigationNotifications::evaluateButtonsHide);
}

void ContentViewModel::showWarningsOfCurrentSlide() {
    if (const auto slide = controller_ == nullptr ? nullptr : controller_->currentSlideViewModel()) {
        slide->showWarnings();
    }
}

} // namespace velmar
