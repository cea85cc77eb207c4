#pragma once

#include <Foundation/FileError.h>
#include <Foundation/FileHandle.h>
#include <Foundation/URL.h>

#include <cstddef>
#include <memory>
#include <string>
#include <variant>

namespace velmar {

struct Configuration;
class IdentityAuthority;

/// A configuration file, opened once. Permissions and content are read through one descriptor, so a file put
/// in its place between the two reads is never admitted. Symbolic links are not followed: the permissions are
/// those of the link, and its content cannot be read. Not thread-safe.
class ConfigurationFile {
public:
    /// Maximum size of the file, 64 MiB.
    static constexpr std::size_t largestSize = std::size_t{64} << 20U;

    /// Opens the file. A failure is reported by the member functions.
    explicit ConfigurationFile(URL url);

    /// Checks owner, group and permissions (see ConfigurationOwnership). Logs the reason and throws
    /// VelmarError::IncorrectPermissionsOnConfigFile if they are not admissible or cannot be read.
    void hasConfigFileCorrectPermissions(const IdentityAuthority &authority) const;

    /// Returns the content of the file. Logs the reason and throws VelmarError::MissingConfigurationFile on
    /// failure.
    [[nodiscard]] std::string content() const;

    /// Reads and decodes the file. Throws VelmarError::MissingConfigurationFile, PropertyListError or
    /// ConfigurationError.
    [[nodiscard]] std::shared_ptr<const Configuration> retrieveConfiguration() const;

private:
    [[nodiscard]] const FileHandle &handle() const;

    URL url_;
    std::variant<FileHandle, FileError> item_; // The file, or the error of its opening.
};

} // namespace velmar
