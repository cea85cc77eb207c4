#include <Foundation/UserDirectories.h>

#include <Foundation/UserAccount.h>

#include <cerrno>
#include <cstdlib>
#include <sstream>

#include <sys/stat.h>
#include <unistd.h>

namespace velmar::UserDirectories {

namespace {

// Returns true if only root can replace the directory at this path. A symbolic link is never trusted: its
// owner chooses its target.
bool isOfRootAlone(std::string path) {
    for (bool exists = false;; path.resize(path.rfind('/') + 1)) {
        while (path.size() > 1 && path.back() == '/') {
            path.pop_back();
        }
        struct stat status {};
        if (lstat(path.c_str(), &status) == 0) {
            // The sticky bit keeps other users from replacing an entry that belongs to root.
            const mode_t closed = exists && (status.st_mode & S_ISVTX) != 0 ? 0 : S_IWGRP | S_IWOTH;
            if (!S_ISDIR(status.st_mode) || status.st_uid != 0 || (status.st_mode & closed) != 0) {
                return false;
            }
            exists = true;
        } else if (errno != ENOENT || exists) {
            return false;
        }
        if (path == "/") {
            return true;
        }
    }
}

bool isTrusted(const std::string &path) {
    return path.starts_with('/') && (geteuid() != 0 || isOfRootAlone(path));
}

std::string variable(const char *name) {
    const char *value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): see the header
    return value == nullptr ? "" : value;
}

// Returns the variable's directory if it is trusted, otherwise one below the home directory.
std::string directory(const char *name, const std::string &belowHome) {
    if (std::string path = variable(name); isTrusted(path)) {
        return path;
    }
    if (const std::string home = variable("HOME"); isTrusted(home)) {
        return home + belowHome;
    }
    const auto account = UserAccount::numbered(geteuid());
    return (account ? account->homeDirectory : std::string()) + belowHome;
}

} // namespace

std::string configuration() {
    return directory("XDG_CONFIG_HOME", "/.config");
}

std::vector<std::string> data() {
    std::vector<std::string> directories = {directory("XDG_DATA_HOME", "/.local/share")};
    std::istringstream list(variable("XDG_DATA_DIRS"));
    for (std::string path; std::getline(list, path, ':');) {
        if (isTrusted(path)) {
            directories.push_back(path);
        }
    }
    if (directories.size() == 1) {
        directories.insert(directories.end(), {"/usr/local/share", "/usr/share"});
    }
    return directories;
}

} // namespace velmar::UserDirectories
