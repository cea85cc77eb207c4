#pragma once

#include <Admission/IdentityCoreService.h>
#include <Foundation/FileAttributes.h>
#include <System/IdentityAuthority.h>

#include <optional>
#include <string>

namespace velmar {

/// The owner and the permissions of a configuration's file, as far as both names and the mode could be read.
struct ConfigurationOwnership {
    std::string owner;
    std::string group;
    IdentityCoreService::PosixPermissions permissions;

    /// Absent if the owner or the group has no name, if the mode has special bits, or if an access control
    /// list says more than the mode.
    [[nodiscard]] static std::optional<ConfigurationOwnership> of(const FileAttributes &attributes);

    /// True if the permissions let nobody write or execute the file but root, a member of the group "admin"
    /// who owns it, and the file's group where that is "wheel" or "admin". What these may do is not looked
    /// at. Anyone else has at most the right to read, as the permissions stand now: an owner who is no
    /// administrator is admitted with a file that he may only read, though an owner can change that.
    [[nodiscard]] bool isAdmissible(const IdentityAuthority &authority) const;

    /// "[root:wheel - rw-r--r--]"
    [[nodiscard]] std::string description() const;
};

} // namespace velmar
