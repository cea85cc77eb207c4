#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// An application's unit of the service manager.
struct ApplicationUnit {
    std::string name;       ///< For example "app-gnome-org.example.App-123.scope".
    std::string identifier; ///< For example "org.example.App".
};

/// Returns the application's unit from the text of /proc/PID/cgroup, or std::nullopt if there is none.
[[nodiscard]] std::optional<ApplicationUnit> applicationUnit(std::string_view controlGroups);

} // namespace velmar
