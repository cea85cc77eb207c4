#pragma once

#include <Base/NavigationNotifications.h>

#include <array>
#include <cstddef>
#include <string_view>

namespace velmar {

/// Place of a slide among the others.
enum class SlidePosition { first, middle, last, sole };

/// `index` must be below `count`.
[[nodiscard]] constexpr SlidePosition slidePosition(std::size_t index, std::size_t count) noexcept {
    if (count == 1) {
        return SlidePosition::sole;
    }
    if (index == 0) {
        return SlidePosition::first;
    }
    return index + 1 == count ? SlidePosition::last : SlidePosition::middle;
}

/// Notifications of the arrival at a slide.
struct SlideArrival {
    SlidePosition position;
    std::string_view announcement;
    std::string_view completion; ///< Posted when the buttons have faded. Empty if they change at once.
};

/// By position.
inline constexpr std::array<SlideArrival, 4> slideArrivals{
    {{SlidePosition::first, NavigationNotifications::willReachFirstSlide,
      NavigationNotifications::didReachFirstSlide},
     {SlidePosition::middle, NavigationNotifications::navigateToNthSlide, {}},
     {SlidePosition::last, NavigationNotifications::willReachLastSlide,
      NavigationNotifications::didReachLastSlide},
     {SlidePosition::sole, NavigationNotifications::willReachSoleSlide,
      NavigationNotifications::didReachSoleSlide}}};

[[nodiscard]] constexpr const SlideArrival &slideArrival(SlidePosition position) noexcept {
    return slideArrivals[static_cast<std::size_t>(position)];
}

/// The current slide, and what the two buttons of the navigation bar show for it. A hidden button takes no
/// presses.
struct NavigationState {
    SlidePosition position = SlidePosition::first;
    bool isSlideValid = true;
    bool slideHidesPreviousButton = false;
    bool slideHidesNextButton = false;

    [[nodiscard]] constexpr bool isPreviousButtonHidden() const noexcept {
        return slideHidesPreviousButton || position == SlidePosition::first ||
               position == SlidePosition::sole;
    }
    [[nodiscard]] constexpr bool isNextButtonHidden() const noexcept { return slideHidesNextButton; }

    /// True if the next button has the quit title, and a press asks for the termination.
    [[nodiscard]] constexpr bool nextButtonQuits() const noexcept {
        return position == SlidePosition::last || position == SlidePosition::sole;
    }

    /// True if a press of the next button shows another slide.
    [[nodiscard]] constexpr bool nextButtonMoves() const noexcept {
        return isSlideValid && !nextButtonQuits();
    }
};

} // namespace velmar
