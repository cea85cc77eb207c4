#include <Foundation/FileAttributes.h>

#include <cerrno>
#include <vector>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>

namespace velmar {

namespace {

// The name of a number in one of the two databases, asked for with a buffer that grows until the record fits.
template <class Record, class Id, class Lookup, class Name>
std::optional<std::string> nameOf(Id id, Lookup lookup, Name Record::*name) {
    std::vector<char> buffer(1024);
    Record record{};
    Record *found = nullptr;
    int failure = 0;
    while ((failure = lookup(id, &record, buffer.data(), buffer.size(), &found)) == ERANGE ||
           failure == EINTR) {
        if (failure == ERANGE)
            buffer.resize(buffer.size() * 2);
    }
    return found != nullptr ? std::optional<std::string>(record.*name) : std::nullopt;
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
            .ownerName = nameOf(status.st_uid, getpwuid_r, &passwd::pw_name),
            .groupName = nameOf(status.st_gid, getgrgid_r, &group::gr_name)};
}

} // namespace velmar
