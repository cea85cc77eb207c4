#include "FileCreation.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>

#include <sys/fsuid.h>
#include <sys/stat.h>

namespace velmar {

namespace {

// Other users have no business in a log.
constexpr mode_t fileMode = S_IRUSR | S_IWUSR;
constexpr mode_t folderMode = S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH;

constexpr int folderFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

// The rights of a user in the file system, for the calling thread alone.
class ActingAs {
public:
    explicit ActingAs(const FileOwner &owner)
        : previousGroup_(static_cast<gid_t>(setfsgid(owner.group))),
          previousUser_(static_cast<uid_t>(setfsuid(owner.user))) {}
    ~ActingAs() {
        const int error = errno;
        setfsuid(previousUser_);
        setfsgid(previousGroup_);
        errno = error;
    }
    ActingAs(const ActingAs &) = delete;
    ActingAs &operator=(const ActingAs &) = delete;

private:
    gid_t previousGroup_;
    uid_t previousUser_;
};

// Whether nobody but root can change what is in the folder.
bool isRootsAlone(int folder) {
    struct stat found {};
    return fstat(folder, &found) == 0 && found.st_uid == 0 && (found.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

bool giveTo(const FileOwner &owner, int descriptor) {
    return fchownat(descriptor, "", owner.user, owner.group, AT_EMPTY_PATH) == 0;
}

} // namespace

FileCreation::FileCreation(std::optional<FileOwner> owner)
    : owner_(geteuid() == 0 && owner && owner->user != 0 ? owner : std::nullopt) {}

FileDescriptor FileCreation::openFolder(const std::filesystem::path &folder,
                                        const std::filesystem::path &required) const {
    const auto normal = folder.lexically_normal().relative_path();
    const auto kept = required.lexically_normal().relative_path();
    auto missingFrom = std::distance(kept.begin(), kept.end());
    FileDescriptor current(open("/", folderFlags));
    for (const auto &component : normal) {
        if (component.empty()) {
            continue; // behind a trailing slash
        }
        current = enter(current.get(), component, missingFrom-- <= 0);
        if (!current.isOpen()) {
            throw std::system_error(errno, std::generic_category(), folder);
        }
    }
    return current;
}

FileDescriptor FileCreation::enter(int parent, const std::string &name, bool create) const {
    const int flags = folderFlags | (owner_ ? O_NOFOLLOW : 0);
    FileDescriptor folder(openat(parent, name.c_str(), flags));
    if (folder.isOpen() || errno != ENOENT || !create) {
        return folder;
    }
    return makeFolder(parent, name);
}

FileDescriptor FileCreation::makeFolder(int parent, const std::string &name) const {
    const auto make = [&] {
        return mkdirat(parent, name.c_str(), folderMode) == 0 || errno == EEXIST
                   ? FileDescriptor(openat(parent, name.c_str(), folderFlags | O_NOFOLLOW))
                   : FileDescriptor();
    };
    if (!owner_) {
        return make();
    }
    if (!isRootsAlone(parent)) {
        const ActingAs user(*owner_);
        return make();
    }
    // Nobody can swap it here between the making and the giving away.
    FileDescriptor folder = make();
    return folder.isOpen() && giveTo(*owner_, folder.get()) ? std::move(folder) : FileDescriptor();
}

FileDescriptor FileCreation::createFile(int folder, const std::string &name, int flags) const {
    const auto create = [&] {
        return FileDescriptor(openat(folder, name.c_str(), flags | O_CREAT | O_EXCL, fileMode));
    };
    if (!owner_) {
        return create();
    }
    if (!isRootsAlone(folder)) {
        const ActingAs user(*owner_);
        return create();
    }
    FileDescriptor file = create();
    return file.isOpen() && giveTo(*owner_, file.get()) ? std::move(file) : FileDescriptor();
}

bool FileCreation::mayOwn(uid_t user) const {
    return user == 0 || user == geteuid() || (owner_ && user == owner_->user);
}

} // namespace velmar
