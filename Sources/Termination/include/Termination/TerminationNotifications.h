#pragma once

#include <string_view>

/// Names of the notifications posted when a quit is refused.
namespace velmar::TerminationNotifications {

inline constexpr std::string_view userTriesToQuitWhenNotAllMonitorsAreInstalled =
    "userTriesToQuitWhenNotAllMonitorsAreInstalled";
inline constexpr std::string_view userTriesToQuitWhenNotAllMonitoredFilesArePresent =
    "userTriesToQuitWhenNotAllMonitoredFilesArePresent";

} // namespace velmar::TerminationNotifications
