#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// The numbers of a user's account.
struct UserIds {
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0; ///< The primary group.
    bool operator==(const UserIds &) const = default;
};

/// What the system knows of users and groups. Any thread.
class IdentityAuthority {
public:
    virtual ~IdentityAuthority() = default;

    /// Whether the group is the user's primary group or one of the others. False also if the user or the
    /// group doesn't exist or cannot be looked up.
    [[nodiscard]] virtual bool isMember(const std::string &userName, const std::string &groupName) const = 0;

    /// Absent if there is no such user or the account names no person.
    [[nodiscard]] virtual std::optional<std::string> fullName(const std::string &userName) const = 0;

    [[nodiscard]] virtual std::optional<UserIds> ids(const std::string &userName) const = 0;

    /// The user that the process acts as; the number as text if the account has no name.
    [[nodiscard]] virtual std::string processUserName() const = 0;

    /// The user in front of the screen: that of the process, and when that is "root" the one of the active
    /// session of the first seat, or "root" again if there is none or it is no person's (that of a login
    /// screen). Found at the first call and the same from then on.
    [[nodiscard]] virtual std::string consoleUserName() const = 0;
};

} // namespace velmar
