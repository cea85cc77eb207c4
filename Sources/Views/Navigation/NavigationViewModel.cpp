#include <Views/Navigation/NavigationViewModel.h>

#include <Views/Content/ContentView/ContentViewModel.h>

#include <string>
#include <utility>

namespace velmar {

NavigationViewModel::NavigationViewModel(NavigationViewModelDelegate &delegate,
                                         std::shared_ptr<const ContentViewModel> content)
    : content_(std::move(content)) {
    using namespace NavigationNotifications;
    const auto observe = [this](std::string_view name, NotificationCenter::Handler handler) {
        observers_.push_back(content_->center().addObserver(std::string(name), std::move(handler)));
    };
    observe(currentSlideWantsToHidePreviousButton, [this] { currentSlideHidePreviousButton_ = true; });
    observe(currentSlideWantsToHideNextButton, [this] { currentSlideHideNextButton_ = true; });
    observe(evaluateButtonsHide, [this] { clearHideFlags(); });
    for (const SlideArrival &arrival : slideArrivals) {
        observe(arrival.announcement, [this, &delegate, &arrival] {
            position_ = arrival.position;
            delegate.reachedSlide(arrival);
        });
    }
}

NavigationState NavigationViewModel::state() const {
    return {position_, content_->isCurrentSlideValid(), currentSlideHidePreviousButton_,
            currentSlideHideNextButton_};
}

void NavigationViewModel::clearHideFlags() noexcept {
    currentSlideHidePreviousButton_ = false;
    currentSlideHideNextButton_ = false;
}

} // namespace velmar
