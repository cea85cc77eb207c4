#include <Foundation/FileManager.h>

#include <Foundation/FileHandle.h>

#include "DescriptorTransfer.h"
#include "FilePath.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace velmar {

namespace {

bool isDirectory(const std::string &path) {
    struct stat status {};
    return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

// Makes renames in the directory durable. Best effort, because some file systems don't support it.
void synchronizeDirectoryOf(const std::string &path) {
    const auto slash = path.rfind('/');
    const std::string directory = slash == std::string::npos ? "." : path.substr(0, slash + 1);
    const Descriptor names(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (names) {
        fsync(names.number());
    }
}

} // namespace

bool FileManager::fileExists(const std::string &path) const {
    return path.find('\0') == std::string::npos && access(path.c_str(), F_OK) == 0;
}

FileAttributes FileManager::attributesOfItem(const std::string &path) const {
    return FileHandle::openItself(path).attributes();
}

std::vector<std::string> FileManager::contentsOfDirectory(const std::string &path) const {
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(opendir(systemPath(path, "listed")), closedir);
    if (!directory) {
        throw FileError::fromErrno(path, "listed", errno);
    }
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const dirent *entry = readdir(directory.get());
        if (entry == nullptr) {
            break;
        }
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            names.emplace_back(name);
        }
    }
    if (errno != 0) {
        throw FileError::fromErrno(path, "listed", errno);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string FileManager::contents(const std::string &path, std::size_t limit) const {
    // O_NONBLOCK: the path may name a pipe.
    const Descriptor file(open(systemPath(path, "read"), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file) {
        throw FileError::fromErrno(path, "read", errno);
    }
    return readRegularFile(file, path, limit);
}

void FileManager::createDirectory(const std::string &path, std::uint32_t mode) const {
    systemPath(path, "created");
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        const std::string part = path.substr(0, end);
        if (mkdir(part.c_str(), mode) == 0) {
            continue;
        }
        // mkdir fails in several ways for an existing directory: EEXIST, EROFS, EACCES.
        const int failure = errno;
        if (!isDirectory(part)) {
            throw FileError(FileError::SystemError{part, "created", failure});
        }
    }
}

void FileManager::createFile(const std::string &path, std::string_view contents, std::uint32_t mode) const {
    const Descriptor file(open(systemPath(path, "created"), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file) {
        throw FileError(FileError::SystemError{path, "created", errno});
    }
    try {
        writeWhole(file, path, contents);
    } catch (...) {
        unlink(path.c_str());
        throw;
    }
}

void FileManager::writeAtomically(const std::string &path, std::string_view contents,
                                  std::uint32_t mode) const {
    systemPath(path, "written");
    std::string temporary = path + ".XXXXXX";
    const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
    if (!file) {
        throw FileError::fromErrno(path, "written", errno);
    }
    try {
        writeWhole(file, path, contents);
        if (fchmod(file.number(), mode) != 0 || fsync(file.number()) != 0 ||
            std::rename(temporary.c_str(), path.c_str()) != 0) {
            throw FileError::fromErrno(path, "written", errno);
        }
    } catch (...) {
        unlink(temporary.c_str());
        throw;
    }
    synchronizeDirectoryOf(path);
}

void FileManager::removeItem(const std::string &path) const {
    if (std::remove(systemPath(path, "removed")) != 0) {
        throw FileError::fromErrno(path, "removed", errno);
    }
}

const FileManager &FileManager::defaultManager() {
    // Never destroyed: queues may still use it at exit.
    static const auto &manager = *new FileManager;
    return manager;
}

} // namespace velmar
