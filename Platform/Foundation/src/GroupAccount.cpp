#include <Foundation/GroupAccount.h>

#include "AccountLookup.h"

#include <grp.h>

namespace velmar {

namespace {

GroupAccount accountOf(const group &record) {
    return {.name = record.gr_name, .groupId = record.gr_gid};
}

} // namespace

std::optional<GroupAccount> GroupAccount::named(const std::string &name) {
    return accountFrom<GroupAccount, group>(name.c_str(), getgrnam_r, accountOf);
}

std::optional<GroupAccount> GroupAccount::numbered(std::uint32_t groupId) {
    return accountFrom<GroupAccount, group>(groupId, getgrgid_r, accountOf);
}

} // namespace velmar
