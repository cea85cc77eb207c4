#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// A record of the machine's user database, from any source configured in the system. A lookup may block; a
/// failed lookup returns std::nullopt. Thread-safe.
struct UserAccount {
    std::string name;
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0; ///< The primary group.
    std::string description;   ///< The field with the person's name (GECOS), as stored.
    std::string homeDirectory;

    [[nodiscard]] static std::optional<UserAccount> named(const std::string &name);
    [[nodiscard]] static std::optional<UserAccount> numbered(std::uint32_t userId);
};

} // namespace velmar
