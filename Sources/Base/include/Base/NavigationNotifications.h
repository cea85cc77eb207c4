#pragma once

#include <string_view>

/// Names of the notifications posted between the parts of the navigation.
namespace velmar::NavigationNotifications {

inline constexpr std::string_view willNavigateToNextSlide = "willNavigateToNextSlideNotification";
inline constexpr std::string_view willNavigateToPreviousSlide = "willNavigateToPreviousSlideNotification";
inline constexpr std::string_view slideHasInvalidMandatoryElements = "slideHasInvalidMandatoryElements";
inline constexpr std::string_view allMandatoryElementsInSlideAreValid = "allMandatoryElementsInSlideAreValid";
inline constexpr std::string_view currentSlideWantsToHidePreviousButton =
    "currentSlideWantsToHidePreviousButton";
inline constexpr std::string_view currentSlideWantsToHideNextButton = "currentSlideWantsToHideNextButton";
inline constexpr std::string_view evaluateButtonsHide = "evaluateButtonsHide";
inline constexpr std::string_view willReachFirstSlide = "willReachFirstSlideNotification";
inline constexpr std::string_view willReachLastSlide = "willReachLastSlideNotification";
inline constexpr std::string_view willReachSoleSlide = "willReachSoleSlideNotification";
inline constexpr std::string_view navigateToNthSlide = "navigateToNthSlide";
inline constexpr std::string_view didReachFirstSlide = "didReachFirstSlideNotification";
inline constexpr std::string_view didReachLastSlide = "didReachLastSlideNotification";
inline constexpr std::string_view didReachSoleSlide = "didReachSoleSlideNotification";

} // namespace velmar::NavigationNotifications
