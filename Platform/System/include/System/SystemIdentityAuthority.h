#pragma once

#include <System/IdentityAuthority.h>

#include <functional>
#include <mutex>

namespace velmar {

/// The identities of this machine: its user and group databases and its login sessions.
class SystemIdentityAuthority final : public IdentityAuthority {
public:
    /// A login session as the system's login manager describes it.
    struct Session {
        std::uint32_t userId = 0;
        std::string kind; ///< Its class: "user", "greeter", "lock-screen", ...
    };

    /// Gives the active session of the first seat.
    using ActiveSession = std::function<std::optional<Session>()>;

    SystemIdentityAuthority();
    explicit SystemIdentityAuthority(ActiveSession activeSession);

    [[nodiscard]] bool isMember(const std::string &userName, const std::string &groupName) const override;
    [[nodiscard]] std::optional<std::string> fullName(const std::string &userName) const override;
    [[nodiscard]] std::optional<UserIds> ids(const std::string &userName) const override;
    [[nodiscard]] std::string processUserName() const override;
    [[nodiscard]] std::string consoleUserName() const override;

    /// The authority of the process.
    [[nodiscard]] static const SystemIdentityAuthority &shared();

private:
    ActiveSession activeSession_;
    mutable std::once_flag consoleUserFound_;
    mutable std::string consoleUser_;
};

} // namespace velmar
