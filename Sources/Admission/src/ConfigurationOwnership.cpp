#include <Admission/ConfigurationOwnership.h>

#include <fmt/format.h>

namespace velmar {

using IdentityCoreService::Permission;
using IdentityCoreService::PosixPermissions;

namespace {

// Execute permission is refused deliberately, like write permission.
bool isTooOpen(Permission permission) noexcept {
    return permission > Permission::read;
}

} // namespace

std::optional<ConfigurationOwnership> ConfigurationOwnership::of(const FileAttributes &attributes) {
    if (!attributes.ownerName || !attributes.groupName || attributes.hasAccessControlList) {
        return std::nullopt;
    }
    try {
        return ConfigurationOwnership{*attributes.ownerName, *attributes.groupName,
                                      PosixPermissions::fromMode(attributes.permissions)};
    } catch (const PosixPermissions::PermissionError &) {
        return std::nullopt;
    }
}

bool ConfigurationOwnership::isAdmissible(const IdentityAuthority &authority) const {
    const bool ownerIsAdmin = owner == "root" || authority.isMember(owner, "admin");
    const bool groupIsAdmin = group == "wheel" || group == "admin";
    if (ownerIsAdmin && !groupIsAdmin && isTooOpen(permissions.group)) {
        return false;
    }
    if (!ownerIsAdmin && (!groupIsAdmin || isTooOpen(permissions.user))) {
        return false;
    }
    return !isTooOpen(permissions.other);
}

std::string ConfigurationOwnership::description() const {
    return fmt::format("[{}:{} - {}]", owner, group, permissions.description());
}

} // namespace velmar
