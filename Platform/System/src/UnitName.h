#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velmar {

/// Name of the service manager's unit that a process of this machine runs in, such as
/// "app-gnome-org.example.App-123.scope". The unit of the user's manager comes before that of the system's.
/// Empty without a unit, and without a service manager.
[[nodiscard]] std::string unitOfProcess(std::int32_t process);

/// Identifier of the application that a unit runs, such as "org.example.App", by the unit's name. Empty for a
/// unit of no application. libsystemd gives the names of units but doesn't take them apart.
[[nodiscard]] std::string applicationOfUnit(std::string_view unit);

} // namespace velmar
