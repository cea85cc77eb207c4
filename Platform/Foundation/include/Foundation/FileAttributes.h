#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct stat;

namespace velmar {

/// Attributes of one file system item.
struct FileAttributes {
    enum class Kind : std::uint8_t { RegularFile, Directory, SymbolicLink, Other };

    Kind kind = Kind::Other;
    std::uint64_t size = 0;        ///< In bytes.
    std::uint32_t permissions = 0; ///< The lower twelve bits of the mode: special bits, user, group, others.
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0;
    std::optional<std::string> ownerName; ///< Absent if no account has this id.
    std::optional<std::string> groupName;
    /// True if an access control list grants named users or groups rights that the mode doesn't show.
    bool hasAccessControlList = false;

    /// Returns the attributes that `status` contains: all except hasAccessControlList, which stays false.
    [[nodiscard]] static FileAttributes of(const struct stat &status);
};

} // namespace velmar
