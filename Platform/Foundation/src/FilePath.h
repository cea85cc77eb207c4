#pragma once

#include <Foundation/FileError.h>

#include <cerrno>
#include <string>

namespace velmar {

/// Returns the path for a system call. Throws FileError if the path contains a NUL byte, which would truncate
/// it.
inline const char *systemPath(const std::string &path, const char *action) {
    if (path.find('\0') != std::string::npos) {
        throw FileError::fromErrno(path, action, EINVAL);
    }
    return path.c_str();
}

} // namespace velmar
