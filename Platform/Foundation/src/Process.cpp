#include <Foundation/Process.h>

#include <Foundation/ProcessError.h>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {

std::string Process::description() const {
    std::string text = executablePath;
    for (const std::string &argument : arguments) {
        text.append(" ").append(argument);
    }
    return text;
}

void Process::checkLaunchable() const {
    const auto holdsNul = [](const std::string &text) { return text.find('\0') != std::string::npos; };
    if (holdsNul(executablePath) || std::ranges::any_of(arguments, holdsNul)) {
        throw ProcessError(ProcessError::HoldsNul{executablePath});
    }
    struct stat status {};
    if (stat(executablePath.c_str(), &status) != 0) {
        throw ProcessError(ProcessError::NotLaunched{executablePath, errno});
    }
    if (S_ISDIR(status.st_mode)) {
        throw ProcessError(ProcessError::NotLaunched{executablePath, EISDIR});
    }
    if (faccessat(AT_FDCWD, executablePath.c_str(), X_OK, AT_EACCESS) != 0) {
        throw ProcessError(ProcessError::NotLaunched{executablePath, errno});
    }
}

} // namespace velmar
