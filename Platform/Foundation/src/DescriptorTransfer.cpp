#include "DescriptorTransfer.h"

#include <Foundation/DescriptorWriting.h>
#include <Foundation/FileError.h>

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>

namespace velmar {

std::size_t sizeOfRegularFile(const Descriptor &descriptor, const std::string &path) {
    struct stat status {};
    if (fstat(descriptor.number(), &status) != 0) {
        throw FileError::fromErrno(path, "read", errno);
    }
    if (S_ISDIR(status.st_mode)) {
        throw FileError(FileError::IsDirectory{path});
    }
    if (!S_ISREG(status.st_mode)) {
        throw FileError(FileError::NotRegularFile{path});
    }
    return static_cast<std::size_t>(status.st_size);
}

std::string readRegularFile(const Descriptor &descriptor, const std::string &path, std::size_t limit) {
    const std::size_t size = sizeOfRegularFile(descriptor, path);
    if (size > limit) {
        throw FileError(FileError::TooLarge{path, limit});
    }

    // The file may grow or shrink during the read, so its size is only a hint. One extra byte detects the
    // end.
    std::string contents(size + 1, '\0');
    std::size_t length = 0;
    for (;;) {
        const ssize_t count = read(descriptor.number(), contents.data() + length, contents.size() - length);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0) {
            throw FileError::fromErrno(path, "read", errno);
        }
        if (count == 0) {
            break;
        }
        length += static_cast<std::size_t>(count);
        if (length > limit) {
            throw FileError(FileError::TooLarge{path, limit});
        }
        if (length == contents.size()) {
            contents.resize(contents.size() + std::max<std::size_t>(contents.size(), 4096));
        }
    }
    contents.resize(length);
    return contents;
}

void writeWhole(const Descriptor &descriptor, const std::string &path, std::string_view contents) {
    if (const int failure = writeAll(descriptor.number(), contents)) {
        throw FileError::fromErrno(path, "written", failure);
    }
}

} // namespace velmar
