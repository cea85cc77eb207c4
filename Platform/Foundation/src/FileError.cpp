#include <Foundation/FileError.h>

#include <cerrno>
#include <cstring>
#include <utility>

namespace velmar {

std::string FileFailure::NotFound::errorDescription() const {
    return "There is nothing at '" + path + "'.";
}

std::string FileFailure::IsDirectory::errorDescription() const {
    return "The item at '" + path + "' is a directory.";
}

std::string FileFailure::NotRegularFile::errorDescription() const {
    return "The item at '" + path + "' is not a regular file.";
}

std::string FileFailure::TooLarge::errorDescription() const {
    return "The file '" + path + "' is larger than the " + std::to_string(limit) + " bytes allowed.";
}

std::string FileFailure::SystemError::errorDescription() const {
    const char *reason = strerrordesc_np(code); // Independent of the locale.
    return "The item at '" + path + "' couldn't be " + action + ": " +
           (reason != nullptr ? reason : "error " + std::to_string(code)) + ".";
}

FileError FileError::fromErrno(std::string path, std::string action, int code) {
    if (code == ENOENT || code == ENOTDIR) {
        return NotFound{std::move(path)};
    }
    return SystemError{std::move(path), std::move(action), code};
}

} // namespace velmar
