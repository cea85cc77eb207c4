#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The unit of the service manager that an application runs in.
struct ApplicationUnit {
    std::string name;       ///< "app-gnome-org.example.App-123.scope".
    std::string identifier; ///< "org.example.App".
};

/// The unit in a process's control groups, the text of /proc/PID/cgroup; none for what is no application's.
[[nodiscard]] std::optional<ApplicationUnit> applicationUnit(std::string_view controlGroups);

} // namespace velmar
