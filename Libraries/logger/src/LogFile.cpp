#include "LogFile.h"

#include <cerrno>

#include <sys/stat.h>

#include <Foundation/DescriptorWriting.h>
#include <Foundation/FileError.h>

#include "FileCreation.h"

namespace velmar {

namespace {

// O_NONBLOCK: a pipe in the file's place is rejected without blocking.
constexpr int openFlags = O_WRONLY | O_APPEND | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
// Another process may alternately remove and create the file.
constexpr int attempts = 8;

[[noreturn]] void refuse(int error, const std::string &path) {
    throw FileError::fromErrno(path, "written", error);
}

Descriptor openOrCreate(const FileCreation &creation, const LogFileSettings &settings) {
    const Descriptor folder = creation.openFolder(settings.logFileURL.parent_path(), settings.requiredFolder);
    const std::string name = settings.logFileURL.filename();
    for (int attempt = 0; attempt < attempts; ++attempt) {
        // O_CREAT is added only if necessary: the kernel may refuse it for an existing file in a sticky
        // folder.
        Descriptor file(openat(folder.number(), name.c_str(), openFlags));
        if (!file && errno == ENOENT) {
            file = creation.createFile(folder.number(), name, openFlags);
        }
        if (file) {
            return file;
        }
        if (errno != EEXIST) {
            refuse(errno, settings.logFileURL);
        }
    }
    refuse(EEXIST, settings.logFileURL);
}

} // namespace

LogFile::LogFile(const LogFileSettings &settings)
    : path_(settings.logFileURL), syncAfterEachWrite_(settings.syncAfterEachWrite) {
    const FileCreation creation(settings.owner);
    if (!settings.logFileURL.is_absolute() || !settings.logFileURL.has_filename()) {
        refuse(EINVAL, path_);
    }
    descriptor_ = openOrCreate(creation, settings);
    struct stat found {};
    if (fstat(descriptor_.number(), &found) != 0) {
        refuse(errno, path_);
    }
    if (!S_ISREG(found.st_mode) || found.st_nlink != 1 || !creation.mayOwn(found.st_uid)) {
        refuse(EPERM, path_);
    }
    device_ = found.st_dev;
    number_ = found.st_ino;
}

bool LogFile::isCurrent() const {
    struct stat found {};
    return lstat(path_.c_str(), &found) == 0 && found.st_dev == device_ && found.st_ino == number_;
}

void LogFile::append(std::string_view text) {
    if (const int failure = writeAll(descriptor_.number(), text)) {
        refuse(failure, path_);
    }
    if (syncAfterEachWrite_ && fdatasync(descriptor_.number()) != 0) {
        refuse(errno, path_);
    }
}

} // namespace velmar
