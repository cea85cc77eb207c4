#pragma once

#include <Admission/LaunchOptions.h>
#include <Foundation/URL.h>

#include <optional>
#include <string>

namespace velmar {

class FileManager;
class UserDefaults;

/// Finds the configuration file. The name comes from the process's options or the saved name; the file is
/// searched in two directories. Main thread.
class ConfigurationLocator {
public:
    /// Directories in search order.
    struct Places {
        URL managedPreferences;
        std::optional<URL> applicationSupport; ///< Parent of the application's directory.

        /// Returns the directories of the system.
        [[nodiscard]] static Places ofSystem();
    };

    /// `defaults` and `fileManager` must outlive the locator.
    ConfigurationLocator(LaunchOptions options, UserDefaults &defaults, const FileManager &fileManager,
                         Places places = Places::ofSystem());

    /// Returns the name of the file, which ends in ".plist" and may contain a relative path: the option's
    /// value, else the saved name, else "Velmar.plist". Saves the option's value if `save` is set; a failure
    /// to save is logged.
    [[nodiscard]] std::string configurationName() const;

    /// Returns the first existing file of that name in the directories. A dangling symbolic link does not
    /// exist. Throws VelmarError::InternalError if no directory contains the file.
    [[nodiscard]] URL findConfigurationFile(const std::string &name) const;

private:
    void remember(const std::string &name) const;

    LaunchOptions options_;
    UserDefaults &defaults_;
    const FileManager &fileManager_;
    Places places_;
};

} // namespace velmar
