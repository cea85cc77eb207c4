#pragma once

#include <Foundation/LocalizedError.h>

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

/// Permission values of files, as administrators write them.
namespace velmar::IdentityCoreService {

/// What one class of users may do. Each case's number is its place in the order of openness, which is not the
/// order of the octal digits: read counts 1, write 2, execute 4.
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

/// Three letters, such as "rw-".
[[nodiscard]] std::string_view description(Permission permission) noexcept;

/// Replaces the order of openness while it is set: a function from a case to its place. None by default.
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

/// The permissions of a file's owner, its group and everybody else.
struct PosixPermissions {
    Permission user = Permission::noPermissions;
    Permission group = Permission::noPermissions;
    Permission other = Permission::noPermissions;

    struct InvalidNumber {
        int number;         ///< The part of the number that is no octal digit.
        std::string target; ///< "user", "group" or "other".
        [[nodiscard]] std::string errorDescription() const;
    };
    class PermissionError;

    /// A decimal number whose three digits are read as octal ones: 644 is "rw-r--r--". Throws PermissionError
    /// where a part lies above 7 (so does every mode with a fourth digit) or below 0.
    [[nodiscard]] static PosixPermissions fromDecimal(int number);

    /// The permissions of a file's mode, its special bits included: these make a fourth digit, and so throw.
    [[nodiscard]] static PosixPermissions fromMode(unsigned int mode);

    /// Nine letters, such as "rw-r--r--".
    [[nodiscard]] std::string description() const;

    bool operator==(const PosixPermissions &) const = default;
};

class PosixPermissions::PermissionError final : public ErrorOfCases<PosixPermissions::InvalidNumber> {
public:
    using InvalidNumber = PosixPermissions::InvalidNumber;
    using ErrorOfCases::ErrorOfCases;
};

} // namespace velmar::IdentityCoreService
