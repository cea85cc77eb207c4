#pragma once

#include <Foundation/FileAttributes.h>

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>

namespace velmar {

class IdentityAuthority;

/// Judges the paths of files that an administrator vouches for: whether there is a file, and whether
/// administrators alone decide what stands there. Administrators are root and the members of the group
/// "admin"; the groups of number 0, "wheel" and "admin" are theirs. Sees each item of the file system once,
/// and keeps what it saw. Used by one thread.
class GuardedPaths {
public:
    /// The authority outlives it.
    explicit GuardedPaths(const IdentityAuthority &authority) : authority_(authority) {}

    /// What is wrong with the path of a file, a sentence. Absent if nothing is, and where this process may
    /// not look.
    [[nodiscard]] std::optional<std::string> fault(const std::string &path);

private:
    struct Item {
        enum class State { present, missing, barred } state = State::present;
        FileAttributes::Kind kind = FileAttributes::Kind::Other;
        std::string opening; ///< Why an ordinary user may change it; empty if none may.
    };

    [[nodiscard]] std::optional<std::string> found(const std::string &path);
    [[nodiscard]] const Item &item(const std::filesystem::path &path);
    [[nodiscard]] Item look(const std::string &path) const;
    [[nodiscard]] std::string opening(const FileAttributes &attributes) const;

    const IdentityAuthority &authority_;
    std::unordered_map<std::string, Item> items_;
    std::unordered_map<std::string, std::optional<std::string>> faults_;
};

} // namespace velmar
