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

/// A configuration's file, opened once: it is judged and read through the same descriptor, so that nothing
/// put in its place between the two is admitted. The item itself is opened: a symbolic link is judged as the
/// link, and cannot be read. What goes wrong is logged and thrown with the application's texts. One thread at
/// a time.
class ConfigurationFile {
public:
    /// A larger file is not read: 64 MiB.
    static constexpr std::size_t largestSize = std::size_t{64} << 20U;

    /// Opens the item. What is wrong with it shows when it is judged or read.
    explicit ConfigurationFile(URL url);

    /// Returns if the owner, the group and the permissions are admissible (see ConfigurationOwnership).
    /// Otherwise logs them, or that they cannot be told, and throws
    /// VelmarError::IncorrectPermissionsOnConfigFile.
    void hasConfigFileCorrectPermissions(const IdentityAuthority &authority) const;

    /// The content of the file. Throws VelmarError::MissingConfigurationFile, with the reason in the log.
    [[nodiscard]] std::string content() const;

    /// Reads and decodes the file. Throws what `content` throws, PropertyListError and ConfigurationError.
    [[nodiscard]] std::shared_ptr<const Configuration> retrieveConfiguration() const;

private:
    [[nodiscard]] const FileHandle &handle() const;

    URL url_;
    std::variant<FileHandle, FileError> item_; // Or why it couldn't be opened.
};

} // namespace velmar
