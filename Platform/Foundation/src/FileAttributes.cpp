#include <Foundation/FileAttributes.h>

#include <Foundation/GroupAccount.h>
#include <Foundation/UserAccount.h>

#include <sys/stat.h>

namespace velmar {

namespace {

template <class Account>
std::optional<std::string> nameOf(const std::optional<Account> &account) {
    return account ? std::optional(account->name) : std::nullopt;
}

FileAttributes::Kind kindOf(mode_t mode) {
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FileAttributes::Kind::RegularFile;
    case S_IFDIR:
        return FileAttributes::Kind::Directory;
    case S_IFLNK:
        return FileAttributes::Kind::SymbolicLink;
    default:
        return FileAttributes::Kind::Other;
    }
}

} // namespace

FileAttributes FileAttributes::of(const struct stat &status) {
    return {.kind = kindOf(status.st_mode),
            .size = static_cast<std::uint64_t>(status.st_size),
            .permissions = status.st_mode & 07777U,
            .userId = status.st_uid,
            .groupId = status.st_gid,
            .ownerName = nameOf(UserAccount::numbered(status.st_uid)),
            .groupName = nameOf(GroupAccount::numbered(status.st_gid))};
}

} // namespace velmar
