#pragma once

#include <Foundation/LocalizedError.h>

#include <cstddef>
#include <string>

namespace velmar {

struct FileFailure {
    struct NotFound {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct IsDirectory {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    /// The item is neither a regular file nor a directory, but a link, a pipe, a socket or a device.
    struct NotRegularFile {
        std::string path;
        [[nodiscard]] std::string errorDescription() const;
    };
    struct TooLarge {
        std::string path;
        std::size_t limit; ///< In bytes.
        [[nodiscard]] std::string errorDescription() const;
    };
    /// A system call failed for any other reason.
    struct SystemError {
        std::string path;
        std::string action; ///< A past participle for the message: "read", "created".
        int code;           ///< errno
        [[nodiscard]] std::string errorDescription() const;
    };
};

/// An error about an item of the file system. Each message is one sentence.
class FileError final
    : public ErrorOfCases<FileFailure::NotFound, FileFailure::IsDirectory, FileFailure::NotRegularFile,
                          FileFailure::TooLarge, FileFailure::SystemError>,
      public FileFailure {
public:
    using ErrorOfCases::ErrorOfCases;

    /// Returns the error of a failed system call: NotFound for ENOENT and ENOTDIR, otherwise SystemError.
    [[nodiscard]] static FileError fromErrno(std::string path, std::string action, int code);
};

} // namespace velmar
