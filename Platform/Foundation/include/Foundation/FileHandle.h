#pragma once

#include <Foundation/Descriptor.h>
#include <Foundation/FileAttributes.h>

#include <cstddef>
#include <string>
#include <utility>

namespace velmar {

/// An open item of the file system. Attributes and content are always those of the opened item, even if its
/// path is renamed or replaced. Destroying the handle closes the item. Child processes don't inherit it.
class FileHandle {
public:
    /// Opens the item at `path` without following a symbolic link; a link's content cannot be read. Opening
    /// needs no read permission and doesn't block on a pipe. Throws FileError.
    [[nodiscard]] static FileHandle openItself(const std::string &path);

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

    /// Returns the current attributes. Throws FileError.
    [[nodiscard]] FileAttributes attributes() const;

    /// Returns the whole content of a regular file, starting at its beginning. Throws FileError: IsDirectory,
    /// NotRegularFile, SystemError, or TooLarge if there are more than `limit` bytes, even if the file grows
    /// during the read.
    [[nodiscard]] std::string readAll(std::size_t limit) const;

private:
    FileHandle(std::string path, Descriptor item) : path_(std::move(path)), item_(std::move(item)) {}

    // Returns a path under /proc/self/fd, which remains valid when the item is renamed.
    [[nodiscard]] std::string pathOfItself() const;

    std::string path_;
    // O_PATH: identifies the item only; readAll() reopens it.
    Descriptor item_;
};

} // namespace velmar
