#pragma once

#include <string_view>

/// What a refused quit is told by, as names on the notification centre.
namespace velmar::TerminationNotifications {

inline constexpr std::string_view userTriesToQuitWhenNotAllMonitorsAreInstalled =
    "userTriesToQuitWhenNotAllMonitorsAreInstalled";
inline constexpr std::string_view userTriesToQuitWhenNotAllMonitoredFilesArePresent =
    "userTriesToQuitWhenNotAllMonitoredFilesArePresent";

} // namespace velmar::TerminationNotifications
