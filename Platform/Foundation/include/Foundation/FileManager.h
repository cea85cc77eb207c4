#pragma once

#include <Foundation/FileAttributes.h>
#include <Foundation/FileError.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// File system operations by path. Stateless and thread-safe. All functions except fileExists() throw
/// FileError. The functions are virtual so that a test can replace one.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Returns true if the item exists. Follows links, so a link to a missing target doesn't exist. Returns
    /// false if the path is not accessible.
    [[nodiscard]] virtual bool fileExists(const std::string &path) const;

    /// Returns the attributes of the item itself. Doesn't follow a symbolic link.
    [[nodiscard]] virtual FileAttributes attributesOfItem(const std::string &path) const;

    /// Returns the sorted names in a directory, without "." and "..".
    [[nodiscard]] virtual std::vector<std::string> contentsOfDirectory(const std::string &path) const;

    /// Returns the whole content of a regular file of at most `limit` bytes. Follows links.
    [[nodiscard]] virtual std::string contents(const std::string &path, std::size_t limit) const;

    /// Creates the directory and its missing parents. Does nothing if the directory exists.
    virtual void createDirectory(const std::string &path, std::uint32_t mode) const;

    /// Creates a new file. Throws if an item of any kind exists at `path`, and leaves it unchanged.
    virtual void createFile(const std::string &path, std::string_view contents, std::uint32_t mode) const;

    /// Replaces the file as a whole: a reader sees either the old or the new content, even after a crash. The
    /// new file gets exactly `mode`; the process's umask doesn't apply.
    virtual void writeAtomically(const std::string &path, std::string_view contents,
                                 std::uint32_t mode) const;

    /// Removes a file, a link or an empty directory.
    virtual void removeItem(const std::string &path) const;

    /// Returns the shared instance of the process.
    [[nodiscard]] static const FileManager &defaultManager();
};

} // namespace velmar
