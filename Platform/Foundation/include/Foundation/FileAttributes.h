#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct stat;

namespace velmar {

/// What the file system tells of one item.
struct FileAttributes {
    enum class Kind : std::uint8_t { RegularFile, Directory, SymbolicLink, Other };

    Kind kind = Kind::Other;
    std::uint64_t size = 0;        ///< In bytes.
    std::uint32_t permissions = 0; ///< The lower twelve bits of the mode: special bits, user, group, others.
    std::uint32_t userId = 0;
    std::uint32_t groupId = 0;
    std::optional<std::string> ownerName; ///< Absent where no account has the number.
    std::optional<std::string> groupName;
    /// An access control list gives named users or groups rights that the mode doesn't tell.
    bool hasAccessControlList = false;

    /// What the status tells: all but the access control list.
    [[nodiscard]] static FileAttributes of(const struct stat &status);
};

} // namespace velmar
