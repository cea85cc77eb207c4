#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// A record of the machine's group database. Lookup works as in UserAccount.
struct GroupAccount {
    std::string name;
    std::uint32_t groupId = 0;

    [[nodiscard]] static std::optional<GroupAccount> named(const std::string &name);
    [[nodiscard]] static std::optional<GroupAccount> numbered(std::uint32_t groupId);
};

} // namespace velmar
