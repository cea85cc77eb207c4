#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// User and group id of an account.
struct UserIds {
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0; ///< The primary group.
    bool operator==(const UserIds &) const = default;
};

/// Information about users and groups. Thread-safe.
class IdentityAuthority {
public:
    virtual ~IdentityAuthority() = default;

    /// Returns true if the group is the user's primary group or a supplementary one. Returns false if the
    /// user or the group doesn't exist or the lookup fails.
    [[nodiscard]] virtual bool isMember(const std::string &userName, const std::string &groupName) const = 0;

    /// Returns the person's name, or std::nullopt if there is no such user or the account has no name.
    [[nodiscard]] virtual std::optional<std::string> fullName(const std::string &userName) const = 0;

    [[nodiscard]] virtual std::optional<UserIds> ids(const std::string &userName) const = 0;

    /// Returns the name of the effective user, or its id as text if the account has no name.
    [[nodiscard]] virtual std::string processUserName() const = 0;

    /// Returns the user at the console: the effective user, unless it is "root". Root's result is the user of
    /// the active session on the first seat, or "root" if there is none or the session is not a person's,
    /// such as that of a login screen. Determined by the first call and cached.
    [[nodiscard]] virtual std::string consoleUserName() const = 0;
};

} // namespace velmar
