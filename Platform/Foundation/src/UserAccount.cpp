#include <Foundation/UserAccount.h>

#include "AccountLookup.h"

#include <pwd.h>

namespace velmar {

namespace {

std::string textOf(const char *field) {
    return field != nullptr ? field : "";
}

UserAccount accountOf(const passwd &record) {
    return {.name = textOf(record.pw_name),
            .userId = record.pw_uid,
            .groupId = record.pw_gid,
            .description = textOf(record.pw_gecos),
            .homeDirectory = textOf(record.pw_dir)};
}

} // namespace

std::optional<UserAccount> UserAccount::named(const std::string &name) {
    return accountFrom<UserAccount, passwd>(name.c_str(), getpwnam_r, accountOf);
}

std::optional<UserAccount> UserAccount::numbered(std::uint32_t userId) {
    return accountFrom<UserAccount, passwd>(userId, getpwuid_r, accountOf);
}

} // namespace velmar
