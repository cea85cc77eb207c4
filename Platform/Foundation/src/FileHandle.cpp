#include <Foundation/FileHandle.h>

#include <Foundation/FileError.h>

#include "DescriptorTransfer.h"
#include "FilePath.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace velmar {

FileHandle FileHandle::openItself(const std::string &path) {
    Descriptor item(open(systemPath(path, "opened"), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    if (!item) {
        throw FileError::fromErrno(path, "opened", errno);
    }
    return {path, std::move(item)};
}

FileAttributes FileHandle::attributes() const {
    struct stat status {};
    if (fstat(item_.number(), &status) != 0) {
        throw FileError::fromErrno(path_, "read", errno);
    }
    FileAttributes attributes = FileAttributes::of(status);
    // The file system stores no list that adds nothing to the mode. An O_PATH descriptor doesn't support
    // fgetxattr.
    attributes.hasAccessControlList =
        getxattr(pathOfItself().c_str(), "system.posix_acl_access", nullptr, 0) >= 0;
    if (!attributes.hasAccessControlList && errno != ENODATA && errno != ENOTSUP) {
        throw FileError(FileError::SystemError{path_, "read", errno});
    }
    return attributes;
}

std::string FileHandle::pathOfItself() const {
    return "/proc/self/fd/" + std::to_string(item_.number());
}

std::string FileHandle::readAll(std::size_t limit) const {
    // Checked before opening: opening a device may have side effects, and opening a link would follow it.
    static_cast<void>(sizeOfRegularFile(item_, path_));
    const Descriptor reader(open(pathOfItself().c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    if (!reader) {
        throw FileError::fromErrno(path_, "read", errno);
    }
    return readRegularFile(reader, path_, limit);
}

} // namespace velmar
