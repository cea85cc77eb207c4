#pragma once

#include <Foundation/FileAttributes.h>

#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>

namespace velmar {

class IdentityAuthority;

/// Tells whether a path leads to a file, and whether only administrators can change that file. Administrators
/// are root and the members of the group "admin"; their groups are number 0, "wheel" and "admin". Reads each
/// item of the file system once and caches it. Not thread-safe.
class GuardedPaths {
public:
    /// The authority must outlive this object.
    explicit GuardedPaths(const IdentityAuthority &authority) : authority_(authority) {}

    /// Returns a sentence about the fault of a path. Absent if there is none, or if this process may not read
    /// a folder on the way.
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
