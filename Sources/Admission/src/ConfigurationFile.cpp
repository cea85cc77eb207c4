#include <Admission/ConfigurationFile.h>

#include <Admission/ConfigurationOwnership.h>
#include <Base/VelmarError.h>
#include <Configuration/Configuration.h>
#include <Foundation/PropertyListDocument.h>
#include <logger/Logger.h>

#include <fmt/format.h>

#include <optional>
#include <utility>

namespace velmar {

namespace {

std::variant<FileHandle, FileError> open(const std::string &path) {
    try {
        return FileHandle::openItself(path);
    } catch (const FileError &error) {
        return error;
    }
}

} // namespace

ConfigurationFile::ConfigurationFile(URL url) : url_(std::move(url)), item_(open(url_.path())) {}

const FileHandle &ConfigurationFile::handle() const {
    if (const auto *error = std::get_if<FileError>(&item_)) {
        throw *error;
    }
    return std::get<FileHandle>(item_);
}

void ConfigurationFile::hasConfigFileCorrectPermissions(const IdentityAuthority &authority) const {
    std::optional<ConfigurationOwnership> ownership;
    try {
        ownership = ConfigurationOwnership::of(handle().attributes());
    } catch (const FileError &) {
        // Refused below.
    }
    if (ownership && ownership->isAdmissible(authority)) {
        return;
    }
    const std::string path = url_.path();
    if (ownership) {
        Logger::error([&] {
            return fmt::format("Config file at '{}' has the following invalid owner/permissions:\n {}", path,
                               ownership->description());
        });
    } else {
        Logger::error([&] {
            return fmt::format("Unable to read the permissions and owner of the config file at '{}'", path);
        });
    }
    throw VelmarError(VelmarError::IncorrectPermissionsOnConfigFile{path});
}

std::string ConfigurationFile::content() const {
    try {
        return handle().readAll(largestSize);
    } catch (const FileError &error) {
        Logger::error("An error occurred while retrieving the configuration file",
                      fmt::format("[{}]", error.errorDescription()));
        throw VelmarError(VelmarError::MissingConfigurationFile{url_.absoluteString()});
    }
}

std::shared_ptr<const Configuration> ConfigurationFile::retrieveConfiguration() const {
    Logger::debug("Retrieving configuration file content...");
    const std::string bytes = content();
    Logger::info("Successfully retrieved configuration file content");
    Logger::debug("Decoding configuration file...");
    return Configuration::decode(PropertyListDocument::read(bytes).root());
}

} // namespace velmar
