#pragma once

#include <System/IdentityAuthority.h>

#include <functional>
#include <mutex>

namespace velmar {

/// The identities of this machine: its user and group databases and its login sessions.
class SystemIdentityAuthority final : public IdentityAuthority {
public:
    /// Gives the user number of the active session of the first seat.
    using ActiveUser = std::function<std::optional<std::uint32_t>()>;

    SystemIdentityAuthority();
    explicit SystemIdentityAuthority(ActiveUser activeUser);

    [[nodiscard]] bool isMember(const std::string &userName, const std::string &groupName) const override;
    [[nodiscard]] std::optional<std::string> fullName(const std::string &userName) const override;
    [[nodiscard]] std::optional<UserIds> ids(const std::string &userName) const override;
    [[nodiscard]] std::string processUserName() const override;
    [[nodiscard]] std::string consoleUserName() const override;

    /// The authority of the process.
    [[nodiscard]] static const SystemIdentityAuthority &shared();

private:
    ActiveUser activeUser_;
    mutable std::once_flag consoleUserFound_;
    mutable std::string consoleUser_;
};

} // namespace velmar
