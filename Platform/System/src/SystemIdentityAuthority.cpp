#include <System/SystemIdentityAuthority.h>

#include <Foundation/GroupAccount.h>
#include <Foundation/UserAccount.h>

#include "OwnedText.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <grp.h>
#include <systemd/sd-login.h>
#include <unistd.h>

namespace velmar {

namespace {

std::vector<gid_t> groupsOf(const UserAccount &user) {
    std::vector<gid_t> groups(32);
    for (;;) {
        auto count = static_cast<int>(groups.size());
        const bool isWhole = getgrouplist(user.name.c_str(), user.groupId, groups.data(), &count) >= 0;
        // getgrouplist returns the needed count, which may be outdated by then.
        groups.resize(isWhole ? static_cast<std::size_t>(count)
                              : std::max(static_cast<std::size_t>(count), groups.size() + 1));
        if (isWhole) {
            return groups;
        }
    }
}

std::optional<SystemIdentityAuthority::Session> activeSessionOfFirstSeat() {
    char *session = nullptr;
    uid_t user = 0;
    if (sd_seat_get_active("seat0", &session, &user) < 0) {
        return std::nullopt;
    }
    const OwnedText identifier(session);
    char *kind = nullptr;
    if (sd_session_get_class(session, &kind) < 0) {
        return std::nullopt;
    }
    const OwnedText owned(kind);
    return SystemIdentityAuthority::Session{user, kind};
}

} // namespace

SystemIdentityAuthority::SystemIdentityAuthority() : SystemIdentityAuthority(activeSessionOfFirstSeat) {}

SystemIdentityAuthority::SystemIdentityAuthority(ActiveSession activeSession)
    : activeSession_(std::move(activeSession)) {}

bool SystemIdentityAuthority::isMember(const std::string &userName, const std::string &groupName) const {
    const auto user = UserAccount::named(userName);
    const auto group = GroupAccount::named(groupName);
    if (!user || !group) {
        return false;
    }
    const std::vector<gid_t> groups = groupsOf(*user);
    return std::find(groups.begin(), groups.end(), group->groupId) != groups.end();
}

std::optional<std::string> SystemIdentityAuthority::fullName(const std::string &userName) const {
    const auto user = UserAccount::named(userName);
    if (!user) {
        return std::nullopt;
    }
    std::string_view field = user->description;
    field = field.substr(0, field.find(','));

    // An "&" in the field means, by convention, the capitalised account name.
    std::string account = userName;
    if (!account.empty() && account.front() >= 'a' && account.front() <= 'z') {
        account.front() = static_cast<char>(account.front() - 'a' + 'A');
    }
    std::string name;
    for (const char character : field) {
        character == '&' ? name += account : name += character;
    }
    return name.empty() ? std::nullopt : std::optional(std::move(name));
}

std::optional<UserIds> SystemIdentityAuthority::ids(const std::string &userName) const {
    const auto user = UserAccount::named(userName);
    return user ? std::optional(UserIds{user->userId, user->groupId}) : std::nullopt;
}

std::string SystemIdentityAuthority::processUserName() const {
    const auto user = UserAccount::numbered(geteuid());
    return user ? user->name : std::to_string(geteuid());
}

std::string SystemIdentityAuthority::consoleUserName() const {
    std::call_once(consoleUserFound_, [this] {
        consoleUser_ = processUserName();
        if (consoleUser_ != "root") {
            return;
        }
        const auto session = activeSession_();
        // A login screen's session has another class.
        if (!session || session->kind != "user") {
            return;
        }
        if (const auto user = UserAccount::numbered(session->userId)) {
            consoleUser_ = user->name;
        }
    });
    return consoleUser_;
}

const SystemIdentityAuthority &SystemIdentityAuthority::shared() {
    // Never destroyed: queues may still use it at exit.
    static const auto &authority = *new SystemIdentityAuthority;
    return authority;
}

} // namespace velmar
