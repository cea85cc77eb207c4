#pragma once

#include <Foundation/NotificationCenter.h>
#include <Views/Navigation/NavigationState.h>

#include <memory>
#include <vector>

namespace velmar {

class ContentViewModel;

/// The view of the two buttons.
class NavigationViewModelDelegate {
public:
    virtual ~NavigationViewModelDelegate() = default;

    /// Called when an arrival is announced. The state of the model is already that of the arrival.
    virtual void reachedSlide(const SlideArrival &arrival) = 0;
};

/// State of the navigation bar: the position and the hidden buttons as the notifications announce them, and
/// the validity of the content. Main thread.
class NavigationViewModel {
public:
    /// The delegate must outlive the model.
    NavigationViewModel(NavigationViewModelDelegate &delegate,
                        std::shared_ptr<const ContentViewModel> content);

    [[nodiscard]] NavigationState state() const;

    /// Resets what the current slide hides. The next announcement sets it again.
    void clearHideFlags() noexcept;

private:
    std::shared_ptr<const ContentViewModel> content_;
    SlidePosition position_ = SlidePosition::first;
    bool currentSlideHidePreviousButton_ = false;
    bool currentSlideHideNextButton_ = false;
    std::vector<NotificationObserver> observers_;
};

} // namespace velmar
