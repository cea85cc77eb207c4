#include <Foundation/UserDirectories.h>

#include <Foundation/UserAccount.h>

#include <cerrno>
#include <cstdlib>
#include <optional>

#include <sys/stat.h>
#include <unistd.h>

namespace velmar::UserDirectories {

namespace {

// Whether nobody but root can put another directory in the path's place. A link counts as what it is: whoever
// owns it chooses its target.
bool isOfRootAlone(std::string path) {
    for (bool exists = false;; path.resize(path.rfind('/') + 1)) {
        while (path.size() > 1 && path.back() == '/')
            path.pop_back();
        struct stat status {};
        if (lstat(path.c_str(), &status) == 0) {
            // In a directory with the sticky bit others cannot replace what is root's.
            const mode_t closed = exists && (status.st_mode & S_ISVTX) != 0 ? 0 : S_IWGRP | S_IWOTH;
            if (!S_ISDIR(status.st_mode) || status.st_uid != 0 || (status.st_mode & closed) != 0)
                return false;
            exists = true;
        } else if (errno != ENOENT || exists) {
            return false;
        }
        if (path == "/")
            return true;
    }
}

std::optional<std::string> directoryInVariable(const char *name) {
    const char *path = std::getenv(name); // NOLINT(concurrency-mt-unsafe): see the header
    if (path == nullptr || *path != '/' || (geteuid() == 0 && !isOfRootAlone(path)))
        return std::nullopt;
    return path;
}

} // namespace

std::string configuration() {
    if (auto directory = directoryInVariable("XDG_CONFIG_HOME"))
        return *std::move(directory);
    if (const auto home = directoryInVariable("HOME"))
        return *home + "/.config";
    const auto account = UserAccount::numbered(geteuid());
    return (account ? account->homeDirectory : std::string()) + "/.config";
}

} // namespace velmar::UserDirectories
