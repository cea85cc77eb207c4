#pragma once

#include <Admission/LaunchOptions.h>
#include <Foundation/URL.h>

#include <optional>
#include <string>

namespace velmar {

class FileManager;
class UserDefaults;

/// Says which file is the configuration: its name by the process's options and the remembered name, its place
/// by the two directories that are searched. Main thread.
class ConfigurationLocator {
public:
    /// The directories, in the order of their search.
    struct Places {
        URL managedPreferences;
        std::optional<URL> applicationSupport; ///< The one that holds the application's own directory.

        /// Those of the system.
        [[nodiscard]] static Places ofSystem();
    };

    /// `defaults` and `fileManager` must outlive the locator.
    ConfigurationLocator(LaunchOptions options, UserDefaults &defaults, const FileManager &fileManager,
                         Places places = Places::ofSystem());

    /// The file's name, always ending in ".plist": the option's, or else the remembered one, or else
    /// "Velmar.plist". An option's name is remembered for the following starts if that was asked for. It may
    /// hold a relative sub-path.
    [[nodiscard]] std::string configurationName() const;

    /// The file of that name in the first place that has it; a link that leads nowhere counts as not there.
    /// Throws VelmarError::InternalError when none has it.
    [[nodiscard]] URL findConfigurationFile(const std::string &name) const;

private:
    void remember(const std::string &name) const;

    LaunchOptions options_;
    UserDefaults &defaults_;
    const FileManager &fileManager_;
    Places places_;
};

} // namespace velmar
