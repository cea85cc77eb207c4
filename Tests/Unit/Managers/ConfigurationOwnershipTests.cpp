#include <Managers/ConfigurationOwnership.h>

#include <Testing/TestIdentityAuthority.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

struct Row {
    const char *owner;
    const char *group;
    std::uint32_t mode;
    bool isAdmitted;
};

void PrintTo(const Row &row, std::ostream *out) {
    *out << row.owner << ':' << row.group << ' ' << std::oct << row.mode;
}

class ConfigurationAdmission : public testing::TestWithParam<Row> {};

TEST_P(ConfigurationAdmission, LooksAtOwnerGroupAndMode) {
    TestIdentityAuthority authority;
    authority.users["boss"].groups = {"staff", "admin"};
    authority.users["user"].groups = {"staff", "wheel"};

    FileAttributes attributes;
    attributes.ownerName = GetParam().owner;
    attributes.groupName = GetParam().group;
    attributes.permissions = GetParam().mode;
    const auto ownership = ConfigurationOwnership::of(attributes);
    ASSERT_TRUE(ownership.has_value());
    EXPECT_EQ(ownership->isAdmissible(authority), GetParam().isAdmitted) << ownership->description();
}

INSTANTIATE_TEST_SUITE_P(RootOwner, ConfigurationAdmission,
                         testing::Values(Row{"root", "wheel", 0644, true}, Row{"root", "wheel", 0640, true},
                                         Row{"root", "wheel", 0000, true}, Row{"root", "wheel", 0774, true},
                                         Row{"root", "wheel", 0646, false}, Row{"root", "wheel", 0755, false},
                                         Row{"root", "wheel", 0645, false}, Row{"root", "admin", 0664, true},
                                         Row{"root", "staff", 0664, false}, Row{"root", "staff", 0644, true},
                                         Row{"root", "staff", 0744, true}, Row{"root", "staff", 0654, false},
                                         Row{"root", "Wheel", 0664, false}));
INSTANTIATE_TEST_SUITE_P(AdminOwner, ConfigurationAdmission,
                         testing::Values(Row{"boss", "admin", 0664, true}, Row{"boss", "staff", 0664, false},
                                         Row{"boss", "staff", 0744, true},
                                         Row{"boss", "wheel", 0662, false}));
INSTANTIATE_TEST_SUITE_P(OtherOwner, ConfigurationAdmission,
                         testing::Values(Row{"user", "admin", 0664, false}, Row{"user", "wheel", 0464, true},
                                         Row{"user", "wheel", 0444, true}, Row{"user", "wheel", 0064, true},
                                         Row{"user", "wheel", 0564, false}, Row{"user", "wheel", 0264, false},
                                         Row{"user", "staff", 0444, false}, Row{"user", "wheel", 0466, false},
                                         Row{"Root", "wheel", 0644, false},
                                         Row{"nobody", "admin", 0474, true}));

TEST(ConfigurationOwnership, IsUnreadableWithoutNamesOrWithSpecialBits) {
    FileAttributes attributes;
    attributes.ownerName = "root";
    attributes.groupName = "wheel";
    attributes.permissions = 0644;
    EXPECT_EQ(ConfigurationOwnership::of(attributes)->description(), "[root:wheel - rw-r--r--]");

    attributes.permissions = 01644;
    EXPECT_FALSE(ConfigurationOwnership::of(attributes).has_value());
    attributes.permissions = 0644;
    attributes.groupName.reset();
    EXPECT_FALSE(ConfigurationOwnership::of(attributes).has_value());
    attributes.groupName = "wheel";
    attributes.ownerName.reset();
    EXPECT_FALSE(ConfigurationOwnership::of(attributes).has_value());
}

} // namespace
} // namespace velmar
