#include <Admission/ConfigurationLocator.h>

#include <Base/Domain.h>
#include <Base/VelmarError.h>
#include <Foundation/FileManager.h>
#include <Foundation/UserDefaults.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <string_view>
#include <utility>

namespace velmar {

namespace {

std::string withExtension(std::string name) {
    static constexpr std::string_view extension = ".plist";
    if (!name.ends_with(extension)) {
        name += extension;
    }
    return name;
}

} // namespace

ConfigurationLocator::Places ConfigurationLocator::Places::ofSystem() {
    return {URL::file(Domain::managedPreferencesPath, true), Domain::applicationSupportDirectory()};
}

ConfigurationLocator::ConfigurationLocator(LaunchOptions options, UserDefaults &defaults,
                                           const FileManager &fileManager, Places places)
    : options_(std::move(options)),
      defaults_(defaults),
      fileManager_(fileManager),
      places_(std::move(places)) {}

std::string ConfigurationLocator::configurationName() const {
    if (options_.configuration) {
        std::string name = withExtension(*options_.configuration);
        if (options_.save) {
            remember(name);
        }
        return name;
    }
    return withExtension(defaults_.string(Domain::configurationDefaultsKey)
                             .value_or(std::string(Domain::defaultConfigurationName)));
}

void ConfigurationLocator::remember(const std::string &name) const {
    try {
        defaults_.set(Domain::configurationDefaultsKey, name);
    } catch (const FileError &error) {
        // Not fatal: the name is valid for this launch.
        Logger::warning([&] { return fmt::format("Unable to save the configuration name '{}'", name); },
                        fmt::format("[{}]", error.errorDescription()));
    }
}

URL ConfigurationLocator::findConfigurationFile(const std::string &name) const {
    std::optional<URL> ownDirectory;
    if (places_.applicationSupport) {
        ownDirectory =
            places_.applicationSupport->appendingPathComponent(Domain::applicationDirectoryName, true);
    }
    for (const auto &directory : {std::optional(places_.managedPreferences), ownDirectory}) {
        if (!directory) {
            continue;
        }
        URL file = directory->appendingPathComponent(name);
        const std::string path = file.path();
        if (fileManager_.fileExists(path)) {
            Logger::info([&] { return fmt::format("Found configuration file at {}", path); });
            return file;
        }
    }
    throw VelmarError(VelmarError::InternalError{
        fmt::format("Unable to build the path to the configuration file {} at {} or {}", name,
                    places_.managedPreferences.path(),
                    ownDirectory ? ownDirectory->path() : "Application Support Velmar path")});
}

} // namespace velmar
