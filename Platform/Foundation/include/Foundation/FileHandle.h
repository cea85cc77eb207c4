#pragma once

#include <Foundation/Descriptor.h>
#include <Foundation/FileAttributes.h>

#include <cstddef>
#include <string>
#include <utility>

namespace velmar {

/// One open item of the file system, held by its descriptor: whatever happens to the path meanwhile,
/// attributes and content are those of the item that was opened. Closed with the handle; not inherited by
/// child processes.
class FileHandle {
public:
    /// Holds the item of that path itself: a symbolic link as the link, which then cannot be read. Opening
    /// neither needs the right to read nor waits for a pipe's other end. Throws FileError.
    [[nodiscard]] static FileHandle openItself(const std::string &path);

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

    /// As they are now. Throws FileError.
    [[nodiscard]] FileAttributes attributes() const;

    /// The whole content of a regular file, from its beginning. Throws FileError: IsDirectory,
    /// NotRegularFile, TooLarge for more than `limit` bytes (also if the file grows while it is read),
    /// SystemError.
    [[nodiscard]] std::string readAll(std::size_t limit) const;

private:
    FileHandle(std::string path, Descriptor item) : path_(std::move(path)), item_(std::move(item)) {}

    // Leads to the item wherever it lies now.
    [[nodiscard]] std::string pathOfItself() const;

    std::string path_;
    Descriptor item_; // names the item only; reading opens it anew
};

} // namespace velmar
