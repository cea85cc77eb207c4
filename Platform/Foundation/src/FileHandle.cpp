#include <Foundation/FileHandle.h>

#include <Foundation/FileError.h>

#include "DescriptorTransfer.h"
#include "FilePath.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace velmar {

FileHandle FileHandle::openItself(const std::string &path) {
    Descriptor item(open(systemPath(path, "opened"), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!item)
        throw FileError::fromErrno(path, "opened", errno);
    return {path, std::move(item)};
}

FileAttributes FileHandle::attributes() const {
    struct stat status {};
    if (fstat(item_.number(), &status) != 0)
        throw FileError::fromErrno(path_, "read", errno);
    return FileAttributes::of(status);
}

std::string FileHandle::readAll(std::size_t limit) const {
    // Asked before opening: the opening of a device may have effects, and that of a link goes elsewhere.
    static_cast<void>(sizeOfRegularFile(item_, path_));
    const std::string itself = "/proc/self/fd/" + std::to_string(item_.number());
    const Descriptor reader(open(itself.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!reader)
        throw FileError::fromErrno(path_, "read", errno);
    return readRegularFile(reader, path_, limit);
}

} // namespace velmar
