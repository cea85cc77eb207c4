#include <System/SystemIdentityAuthority.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include <grp.h>
#include <pwd.h>
#include <systemd/sd-login.h>
#include <unistd.h>

namespace velmar {

namespace {

// A record of the user or the group database with the buffer that its texts lie in.
template <class Record>
struct Entry {
    Record record{};
    std::vector<char> buffer = std::vector<char>(1024);
};

// Asks with a buffer that grows until the record fits; null if there is none or the look-up fails.
template <class Record, class Key, class Lookup>
std::unique_ptr<Entry<Record>> find(Key key, Lookup lookup) {
    auto entry = std::make_unique<Entry<Record>>();
    Record *found = nullptr;
    for (;;) {
        const int failure = lookup(key, &entry->record, entry->buffer.data(), entry->buffer.size(), &found);
        if (failure == ERANGE)
            entry->buffer.resize(entry->buffer.size() * 2);
        else if (failure != EINTR)
            return found != nullptr ? std::move(entry) : nullptr;
    }
}

auto userNamed(const std::string &name) {
    return find<passwd>(name.c_str(), getpwnam_r);
}

auto userOf(uid_t number) {
    return find<passwd>(number, getpwuid_r);
}

auto groupNamed(const std::string &name) {
    return find<group>(name.c_str(), getgrnam_r);
}

std::vector<gid_t> groupsOf(const passwd &user) {
    std::vector<gid_t> groups(32);
    for (;;) {
        auto count = static_cast<int>(groups.size());
        const bool isWhole = getgrouplist(user.pw_name, user.pw_gid, groups.data(), &count) >= 0;
        // When the room is too small, the count says how much is needed; a group may be added meanwhile.
        groups.resize(isWhole ? static_cast<std::size_t>(count)
                              : std::max(static_cast<std::size_t>(count), groups.size() + 1));
        if (isWhole)
            return groups;
    }
}

std::optional<std::uint32_t> activeUserOfFirstSeat() {
    char *session = nullptr;
    uid_t user = 0;
    const int result = sd_seat_get_active("seat0", &session, &user);
    const std::unique_ptr<char, decltype(&std::free)> owned(session, std::free);
    return result >= 0 ? std::optional<std::uint32_t>(user) : std::nullopt;
}

} // namespace

SystemIdentityAuthority::SystemIdentityAuthority() : SystemIdentityAuthority(activeUserOfFirstSeat) {}

SystemIdentityAuthority::SystemIdentityAuthority(ActiveUser activeUser)
    : activeUser_(std::move(activeUser)) {}

bool SystemIdentityAuthority::isMember(const std::string &userName, const std::string &groupName) const {
    const auto user = userNamed(userName);
    const auto group = groupNamed(groupName);
    if (!user || !group)
        return false;
    const std::vector<gid_t> groups = groupsOf(user->record);
    return std::find(groups.begin(), groups.end(), group->record.gr_gid) != groups.end();
}

std::optional<std::string> SystemIdentityAuthority::fullName(const std::string &userName) const {
    const auto user = userNamed(userName);
    if (!user || user->record.pw_gecos == nullptr)
        return std::nullopt;
    std::string_view field = user->record.pw_gecos;
    field = field.substr(0, field.find(','));

    // By old custom an "&" stands for the account's name with a capital letter.
    std::string account = userName;
    if (!account.empty())
        account.front() = static_cast<char>(std::toupper(static_cast<unsigned char>(account.front())));
    std::string name;
    for (const char character : field)
        character == '&' ? name += account : name += character;
    return name.empty() ? std::nullopt : std::optional(std::move(name));
}

std::optional<UserIds> SystemIdentityAuthority::ids(const std::string &userName) const {
    const auto user = userNamed(userName);
    return user ? std::optional(UserIds{user->record.pw_uid, user->record.pw_gid}) : std::nullopt;
}

std::string SystemIdentityAuthority::processUserName() const {
    const auto user = userOf(geteuid());
    return user ? user->record.pw_name : std::to_string(geteuid());
}

std::string SystemIdentityAuthority::consoleUserName() const {
    std::call_once(consoleUserFound_, [this] {
        consoleUser_ = processUserName();
        if (consoleUser_ != "root")
            return;
        if (const auto number = activeUser_()) {
            if (const auto user = userOf(*number))
                consoleUser_ = user->record.pw_name;
        }
    });
    return consoleUser_;
}

const SystemIdentityAuthority &SystemIdentityAuthority::shared() {
    static const SystemIdentityAuthority authority;
    return authority;
}

} // namespace velmar
