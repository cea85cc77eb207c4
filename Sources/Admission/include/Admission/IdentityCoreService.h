#pragma once

#include <Foundation/LocalizedError.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

/// File permissions in the notation of administrators.
namespace velmar::IdentityCoreService {

/// Permissions of one class of users. The values are ordered by openness and differ from the octal digits:
/// read is 1, write 2, execute 4.
enum class Permission : std::uint8_t {
    noPermissions = 0,
    read = 1,
    write = 2,
    readWrite = 3,
    execute = 4,
    readExecute = 5,
    writeExecute = 6,
    readWriteExecute = 7,
};

/// Returns three letters, such as "rw-".
[[nodiscard]] std::string_view description(Permission permission) noexcept;

/// Function that maps a permission to its rank and overrides the order of openness while set. nullptr by
/// default.
extern std::atomic<int (*)(Permission)> permissionOrder;

[[nodiscard]] bool operator<(Permission left, Permission right) noexcept;
[[nodiscard]] inline bool operator>(Permission left, Permission right) noexcept {
    return right < left;
}
[[nodiscard]] inline bool operator<=(Permission left, Permission right) noexcept {
    return !(right < left);
}
[[nodiscard]] inline bool operator>=(Permission left, Permission right) noexcept {
    return !(left < right);
}

/// Permissions of the owner, the group and all other users of a file.
struct PosixPermissions {
    Permission user = Permission::noPermissions;
    Permission group = Permission::noPermissions;
    Permission other = Permission::noPermissions;

    struct InvalidNumber {
        int number;         ///< The part that is not an octal digit.
        std::string target; ///< "user", "group" or "other".
        [[nodiscard]] std::string errorDescription() const;
    };
    class PermissionError;

    /// Converts a decimal number whose three digits are read as octal digits: 644 is "rw-r--r--". Throws
    /// PermissionError if a digit is above 7, a fourth digit is present, or the number is negative.
    [[nodiscard]] static PosixPermissions fromDecimal(int number);

    /// Converts the mode of a file. Throws PermissionError if the mode has special bits.
    [[nodiscard]] static PosixPermissions fromMode(unsigned int mode);

    /// Returns nine letters, such as "rw-r--r--".
    [[nodiscard]] std::string description() const;

    bool operator==(const PosixPermissions &) const = default;
};

class PosixPermissions::PermissionError final : public ErrorOfCases<PosixPermissions::InvalidNumber> {
public:
    using InvalidNumber = PosixPermissions::InvalidNumber;
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar::IdentityCoreService
