#include <Admission/IdentityCoreService.h>

#include <fmt/format.h>

#include <array>

namespace velmar::IdentityCoreService {

std::atomic<int (*)(Permission)> permissionOrder{nullptr};

namespace {

// In a digit of a mode read is 4, write 2 and execute 1; Permission swaps the values of read and execute.
Permission permissionOf(int digit, const char *target) {
    static constexpr std::array byDigit{
        Permission::noPermissions, Permission::execute,
        Permission::write,         Permission::writeExecute,
        Permission::read,          Permission::readExecute,
        Permission::readWrite,     Permission::readWriteExecute,
    };
    if (digit < 0 || digit > 7) {
        throw PosixPermissions::PermissionError(PosixPermissions::InvalidNumber{digit, target});
    }
    return byDigit[static_cast<std::size_t>(digit)];
}

int orderValue(Permission permission) noexcept {
    const auto replaced = permissionOrder.load();
    return replaced ? replaced(permission) : static_cast<int>(permission);
}

} // namespace

std::string_view description(Permission permission) noexcept {
    static constexpr std::array<std::string_view, 8> texts{"---", "r--", "-w-", "rw-",
                                                           "--x", "r-x", "-wx", "rwx"};
    return texts[static_cast<std::size_t>(permission)];
}

bool operator<(Permission left, Permission right) noexcept {
    return orderValue(left) < orderValue(right);
}

std::string PosixPermissions::InvalidNumber::errorDescription() const {
    return fmt::format("{} is not a valid permission number for '{}'", number, target);
}

PosixPermissions PosixPermissions::fromDecimal(int number) {
    const Permission user = permissionOf(number / 100, "user");
    const Permission group = permissionOf(number / 10 % 10, "group");
    const Permission other = permissionOf(number % 10, "other");
    return {user, group, other};
}

PosixPermissions PosixPermissions::fromMode(unsigned int mode) {
    // The octal digits of the mode form the decimal number.
    return fromDecimal(std::stoi(fmt::format("{:o}", mode & 07777U)));
}

std::string PosixPermissions::description() const {
    return fmt::format("{}{}{}", IdentityCoreService::description(user),
                       IdentityCoreService::description(group), IdentityCoreService::description(other));
}

} // namespace velmar::IdentityCoreService
