#include <Admission/IdentityCoreService.h>

#include <gtest/gtest.h>

namespace velmar::IdentityCoreService {
namespace {

TEST(PosixPermissions, RefuseTheFirstPartThatIsNoOctalDigit) {
    const struct {
        int number;
        int part;
        const char *target;
    } cases[] = {{888, 8, "user"},  {1644, 16, "user"}, {798, 9, "group"},
                 {779, 9, "other"}, {-644, -6, "user"}, {-4, -4, "other"}};
    for (const auto &[number, part, target] : cases) {
        try {
            static_cast<void>(PosixPermissions::fromDecimal(number));
            ADD_FAILURE() << number << " was taken";
        } catch (const PosixPermissions::PermissionError &error) {
            EXPECT_EQ(error.as<PosixPermissions::InvalidNumber>()->number, part) << number;
            EXPECT_EQ(error.as<PosixPermissions::InvalidNumber>()->target, target) << number;
        }
    }
}

TEST(Permission, IsOrderedByReadOneWriteTwoExecuteFourUnlessReplaced) {
    EXPECT_LT(Permission::readWrite, Permission::execute);
    EXPECT_FALSE(Permission::write <= Permission::read);
    permissionOrder = [](Permission permission) { return -static_cast<int>(permission); };
    EXPECT_GT(Permission::read, Permission::write);
    permissionOrder = nullptr;
}

} // namespace
} // namespace velmar::IdentityCoreService
