#pragma once

#include <Foundation/FileError.h>

#include <cerrno>
#include <string>

namespace velmar {

/// The path for a system call; throws FileError for one that the call would cut at a NUL byte.
inline const char *systemPath(const std::string &path, const char *action) {
    if (path.find('\0') != std::string::npos)
        throw FileError::fromErrno(path, action, EINVAL);
    return path.c_str();
}

} // namespace velmar
