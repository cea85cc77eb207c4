#include "FileCreation.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <vector>

#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <Foundation/FileError.h>

namespace velmar {

namespace {

// Only the owner may read a log.
constexpr mode_t fileMode = S_IRUSR | S_IWUSR;
constexpr mode_t folderMode = S_IRWXU | S_IRGRP | S_IXGRP | S_IROTH | S_IXOTH;

constexpr int folderFlags = O_PATH | O_DIRECTORY | O_CLOEXEC;

// Switches the calling thread to a user's file system rights. Groups are per thread, too, unless they are set
// through the C library.
class ActingAs {
public:
    explicit ActingAs(const FileOwner &owner) : previousGroups_(groups()) {
        isInForce_ = setGroups({}) && groups().empty();
        previousGroup_ = static_cast<gid_t>(setfsgid(owner.group));
        previousUser_ = static_cast<uid_t>(setfsuid(owner.user));
        // The calls don't report failure; a second, invalid call returns the current id.
        isInForce_ = isInForce_ && static_cast<gid_t>(setfsgid(noGroup)) == owner.group &&
                     static_cast<uid_t>(setfsuid(noUser)) == owner.user;
    }
    ~ActingAs() {
        const int error = errno;
        setfsuid(previousUser_);
        setfsgid(previousGroup_);
        setGroups(previousGroups_);
        errno = error;
    }
    ActingAs(const ActingAs &) = delete;
    ActingAs &operator=(const ActingAs &) = delete;

    [[nodiscard]] bool isInForce() const { return isInForce_; }

private:
    static constexpr auto noGroup = static_cast<gid_t>(-1);
    static constexpr auto noUser = static_cast<uid_t>(-1);

    static std::vector<gid_t> groups() {
        const int count = getgroups(0, nullptr);
        std::vector<gid_t> found(count > 0 ? static_cast<std::size_t>(count) : 0);
        found.resize(found.empty() ? 0
                                   : static_cast<std::size_t>(std::max(getgroups(count, found.data()), 0)));
        return found;
    }
    static bool setGroups(const std::vector<gid_t> &groups) {
        return syscall(SYS_setgroups, groups.size(), groups.data()) == 0;
    }

    std::vector<gid_t> previousGroups_;
    gid_t previousGroup_;
    uid_t previousUser_;
    bool isInForce_ = false;
};

// Calls `make` with the owner's rights. Returns a closed descriptor with EPERM if they cannot be acquired.
template <class Make>
Descriptor makeAs(const FileOwner &owner, const Make &make) {
    const ActingAs user(owner);
    if (!user.isInForce()) {
        errno = EPERM;
        return Descriptor();
    }
    return make();
}

// Returns true if only root can change the folder's entries.
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

Descriptor FileCreation::openFolder(const std::filesystem::path &folder,
                                    const std::filesystem::path &required) const {
    const auto normal = folder.lexically_normal().relative_path();
    const auto kept = required.lexically_normal().relative_path();
    auto missingFrom = std::distance(kept.begin(), kept.end());
    Descriptor current(open("/", folderFlags));
    for (const auto &component : normal) {
        if (component.empty()) {
            continue; // after a trailing slash
        }
        current = enter(current.number(), component, missingFrom-- <= 0);
        if (!current) {
            throw FileError::fromErrno(folder, "opened", errno);
        }
    }
    return current;
}

Descriptor FileCreation::enter(int parent, const std::string &name, bool create) const {
    const int flags = folderFlags | (owner_ ? O_NOFOLLOW : 0);
    Descriptor folder(openat(parent, name.c_str(), flags));
    if (folder || errno != ENOENT || !create) {
        return folder;
    }
    return makeFolder(parent, name);
}

Descriptor FileCreation::makeFolder(int parent, const std::string &name) const {
    const auto make = [&] {
        return mkdirat(parent, name.c_str(), folderMode) == 0 || errno == EEXIST
                   ? Descriptor(openat(parent, name.c_str(), folderFlags | O_NOFOLLOW))
                   : Descriptor();
    };
    if (!owner_) {
        return make();
    }
    if (!isRootsAlone(parent)) {
        return makeAs(*owner_, make);
    }
    // Only root can write to the parent, so the folder can't be replaced before it is given away.
    Descriptor folder = make();
    return folder && giveTo(*owner_, folder.number()) ? std::move(folder) : Descriptor();
}

Descriptor FileCreation::createFile(int folder, const std::string &name, int flags) const {
    const auto create = [&] {
        return Descriptor(openat(folder, name.c_str(), flags | O_CREAT | O_EXCL, fileMode));
    };
    if (!owner_) {
        return create();
    }
    if (!isRootsAlone(folder)) {
        return makeAs(*owner_, create);
    }
    Descriptor file = create();
    return file && giveTo(*owner_, file.number()) ? std::move(file) : Descriptor();
}

bool FileCreation::mayOwn(uid_t user) const {
    return user == 0 || user == geteuid() || (owner_ && user == owner_->user);
}

} // namespace velmar
