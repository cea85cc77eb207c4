#pragma once

#include <System/IdentityAuthority.h>

#include <functional>
#include <mutex>

namespace velmar {

/// The identities of this machine, from its account databases and login sessions.
class SystemIdentityAuthority final : public IdentityAuthority {
public:
    /// A login session of the system's login manager.
    struct Session {
        std::uint32_t userId = 0;
        std::string kind; ///< Session class: "user", "greeter", "lock-screen", ...
    };

    /// Returns the active session of the first seat.
    using ActiveSession = std::function<std::optional<Session>()>;

    SystemIdentityAuthority();
    explicit SystemIdentityAuthority(ActiveSession activeSession);

    [[nodiscard]] bool isMember(const std::string &userName, const std::string &groupName) const override;
    [[nodiscard]] std::optional<std::string> fullName(const std::string &userName) const override;
    [[nodiscard]] std::optional<UserIds> ids(const std::string &userName) const override;
    [[nodiscard]] std::string processUserName() const override;
    [[nodiscard]] std::string consoleUserName() const override;

    /// Returns the shared instance of the process.
    [[nodiscard]] static const SystemIdentityAuthority &shared();

private:
    ActiveSession activeSession_;
    mutable std::once_flag consoleUserFound_;
    mutable std::string consoleUser_;
};

} // namespace velmar
