#pragma once

#include <Admission/IdentityCoreService.h>
#include <Foundation/FileAttributes.h>
#include <System/IdentityAuthority.h>

#include <optional>
#include <string>

namespace velmar {

/// Owner, group and permissions of a configuration file.
struct ConfigurationOwnership {
    std::string owner;
    std::string group;
    IdentityCoreService::PosixPermissions permissions;

    /// Returns nullopt if the owner or the group has no name, the mode has special bits, or the file has an
    /// access control list.
    [[nodiscard]] static std::optional<ConfigurationOwnership> of(const FileAttributes &attributes);

    /// Returns true if only administrators may write or execute the file: root or a member of the group
    /// "admin" as its owner, and the groups "wheel" and "admin". Other users may at most read. An owner who
    /// is not an administrator requires one of these groups and must not have write or execute permission
    /// now, although an owner can change it.
    [[nodiscard]] bool isAdmissible(const IdentityAuthority &authority) const;

    /// Returns a text such as "[root:wheel - rw-r--r--]".
    [[nodiscard]] std::string description() const;
};

} // namespace velmar
