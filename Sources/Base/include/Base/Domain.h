#pragma once

#include <Foundation/URL.h>

#include <optional>
#include <string_view>

/// The application's fixed names and places in the file system.
namespace velmar::Domain {

/// What people read as the application's name.
inline constexpr std::string_view applicationName = "Velmar";

/// The application's identity on the system, which labels begin with.
inline constexpr std::string_view bundleIdentifier = "com.nurvan.velmar";

/// The directory of what applications keep for all users, as a file URL; it need not exist. Absent, with a
/// warning in the log, if the text makes no URL.
[[nodiscard]] std::optional<URL>
applicationSupportDirectory(std::string_view text = "/Library/Application%20Support");

/// The directory of what the device management system delivers.
inline constexpr std::string_view managedPreferencesPath = "/Library/Managed Preferences/";

/// The application's own directory within applicationSupportDirectory().
inline constexpr std::string_view applicationDirectoryName = "Velmar";

inline constexpr std::string_view defaultConfigurationName = "Velmar.plist";

/// The suite of the user defaults and the key in it that remembers a configuration's name.
inline constexpr std::string_view defaultsSuite = "Velmar";
inline constexpr std::string_view configurationDefaultsKey = "configuration";

} // namespace velmar::Domain
