#pragma once

#include <Foundation/NotificationCenter.h>

#include <vector>

namespace velmar {

/// Who shows the two buttons.
class NavigationViewModelDelegate {
public:
    virtual ~NavigationViewModelDelegate() = default;
    virtual void reachedFirstSlide() = 0;
    virtual void reachedLastSlide() = 0;
    virtual void reachedSoleSlide() = 0;
    /// A slide with others on both sides.
    virtual void reevaluateButtons() = 0;
};

/// What the navigation bar knows of the current slide, from the notifications alone. Main thread.
class NavigationViewModel {
public:
    /// The delegate must outlive the model.
    explicit NavigationViewModel(NavigationViewModelDelegate &delegate,
                                 NotificationCenter &center = NotificationCenter::defaultCenter());

    [[nodiscard]] bool isCurrentSlideValid() const noexcept { return isCurrentSlideValid_; }
    [[nodiscard]] bool currentSlideHidePreviousButton() const noexcept {
        return currentSlideHidePreviousButton_;
    }
    [[nodiscard]] bool currentSlideHideNextButton() const noexcept { return currentSlideHideNextButton_; }

    /// Forgets what the current slide wants hidden; the next one says it anew.
    void clearHideFlags() noexcept;

private:
    std::vector<NotificationObserver> observers_;
    bool isCurrentSlideValid_ = true;
    bool currentSlideHidePreviousButton_ = false;
    bool currentSlideHideNextButton_ = false;
};

} // namespace velmar
