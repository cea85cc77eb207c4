#pragma once

#include <Foundation/FileAttributes.h>
#include <Foundation/FileError.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The operations on the file system by path. It has no state; any thread. All but `fileExists` throw
/// FileError. The operations are virtual so that a test can replace one.
class FileManager {
public:
    virtual ~FileManager() = default;

    /// Follows links: a link whose target is missing doesn't exist. False where the way to the path is
    /// barred.
    [[nodiscard]] virtual bool fileExists(const std::string &path) const;

    /// Of the item itself, also if it is a link.
    [[nodiscard]] virtual FileAttributes attributesOfItem(const std::string &path) const;

    /// The names in a directory, sorted, without "." and "..".
    [[nodiscard]] virtual std::vector<std::string> contentsOfDirectory(const std::string &path) const;

    /// The whole of a regular file of at most `limit` bytes; follows links.
    [[nodiscard]] virtual std::string contents(const std::string &path, std::size_t limit) const;

    /// Makes the directory and those above it that are missing. Fine if it is there already.
    virtual void createDirectory(const std::string &path, std::uint32_t mode) const;

    /// Makes a new file; an item that is there already, of whatever kind, is left alone and an error.
    virtual void createFile(const std::string &path, std::string_view contents, std::uint32_t mode) const;

    /// Replaces the file as a whole: a reader sees the old content or the new one, also after a crash. The
    /// new file has the mode given, whatever the mask of the process.
    virtual void writeAtomically(const std::string &path, std::string_view contents,
                                 std::uint32_t mode) const;

    /// Removes a file, a link or an empty directory.
    virtual void removeItem(const std::string &path) const;

    /// The manager of the process.
    [[nodiscard]] static const FileManager &defaultManager();
};

} // namespace velmar
