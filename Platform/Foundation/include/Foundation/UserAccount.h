#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// A record of the machine's user database, whatever source the system is set up to ask. Looking one up may
/// take its time; a failure of it counts as none. Any thread.
struct UserAccount {
    std::string name;
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0; ///< The primary group.
    std::string description;   ///< The field that names the person, as it is stored.
    std::string homeDirectory;

    [[nodiscard]] static std::optional<UserAccount> named(const std::string &name);
    [[nodiscard]] static std::optional<UserAccount> numbered(std::uint32_t userId);
};

} // namespace velmar
