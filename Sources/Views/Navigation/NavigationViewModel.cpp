#include <Views/Navigation/NavigationViewModel.h>

#include <Base/NavigationNotifications.h>

#include <string>

namespace velmar {

NavigationViewModel::NavigationViewModel(NavigationViewModelDelegate &delegate, NotificationCenter &center) {
    using namespace NavigationNotifications;
    const auto observe = [&](std::string_view name, NotificationCenter::Handler handler) {
        observers_.push_back(center.addObserver(std::string(name), std::move(handler)));
    };
    observe(slideHasInvalidMandatoryElements, [this] { isCurrentSlideValid_ = false; });
    observe(allMandatoryElementsInSlideAreValid, [this] { isCurrentSlideValid_ = true; });
    observe(currentSlideWantsToHidePreviousButton, [this] { currentSlideHidePreviousButton_ = true; });
    observe(currentSlideWantsToHideNextButton, [this] { currentSlideHideNextButton_ = true; });
    observe(evaluateButtonsHide, [this] { clearHideFlags(); });
    observe(willReachFirstSlide, [&delegate] { delegate.reachedFirstSlide(); });
    observe(willReachLastSlide, [&delegate] { delegate.reachedLastSlide(); });
    observe(willReachSoleSlide, [&delegate] { delegate.reachedSoleSlide(); });
    observe(navigateToNthSlide, [&delegate] { delegate.reevaluateButtons(); });
}

void NavigationViewModel::clearHideFlags() noexcept {
    currentSlideHidePreviousButton_ = false;
    currentSlideHideNextButton_ = false;
}

} // namespace velmar
