#pragma once

#include <Foundation/URL.h>

#include <optional>
#include <string_view>

/// Fixed names and paths of the application.
namespace velmar::Domain {

/// Name of the application as shown to the user.
inline constexpr std::string_view applicationName = "Velmar";

/// Identifier of the application, the prefix of labels.
inline constexpr std::string_view bundleIdentifier = "com.nurvan.velmar";

/// Returns the directory of the applications' data for all users as a file URL; it need not exist. Logs a
/// warning and returns nullopt if `text` is not a URL.
[[nodiscard]] std::optional<URL>
applicationSupportDirectory(std::string_view text = "/Library/Application%20Support");

/// Directory of the files delivered by the device management system.
inline constexpr std::string_view managedPreferencesPath = "/Library/Managed Preferences/";

/// Name of the application's directory within applicationSupportDirectory().
inline constexpr std::string_view applicationDirectoryName = "Velmar";

inline constexpr std::string_view defaultConfigurationName = "Velmar.plist";

/// Suite of the user defaults and its key that stores the name of the configuration.
inline constexpr std::string_view defaultsSuite = "Velmar";
inline constexpr std::string_view configurationDefaultsKey = "configuration";

} // namespace velmar::Domain
