#pragma once

#include <Foundation/FileAttributes.h>
#include <Managers/IdentityCoreService.h>
#include <System/IdentityAuthority.h>

#include <optional>
#include <string>

namespace velmar {

/// The owner and the permissions of a configuration's file, as far as both names and the mode could be read.
struct ConfigurationOwnership {
    std::string owner;
    std::string group;
    IdentityCoreService::PosixPermissions permissions;

    /// Absent if the owner or the group has no name, or if the mode has special bits.
    [[nodiscard]] static std::optional<ConfigurationOwnership> of(const FileAttributes &attributes);

    /// True if no ordinary user can have written the file: whoever may write or execute it is root, a member
    /// of the group "admin", or of the file's group where that is "wheel" or "admin". What an administrator
    /// who owns the file may do, and what such a group may do, is not looked at. Anyone else has at most the
    /// right to read.
    [[nodiscard]] bool isAdmissible(const IdentityAuthority &authority) const;

    /// "[root:wheel - rw-r--r--]"
    [[nodiscard]] std::string description() const;
};

} // namespace velmar
