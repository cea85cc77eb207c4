#include <Managers/ConfigurationOwnership.h>

#include <Testing/TestIdentityAuthority.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

FileAttributes attributes(std::optional<std::string> owner, std::optional<std::string> group,
                          std::uint32_t mode) {
    FileAttributes result;
    result.ownerName = std::move(owner);
    result.groupName = std::move(group);
    result.permissions = mode;
    return result;
}

TEST(ConfigurationOwnership, AdmitsByOwnerGroupAndMode) {
    TestIdentityAuthority authority;
    authority.users["boss"].groups = {"staff", "admin"};
    authority.users["user"].groups = {"staff", "wheel"};
    const struct {
        const char *owner;
        const char *group;
        std::uint32_t mode;
        bool isAdmitted;
    } rows[] = {
        {"root", "wheel", 0644, true},  {"root", "wheel", 0640, true},  {"root", "wheel", 0000, true},
        {"root", "wheel", 0774, true},  {"root", "wheel", 0646, false}, {"root", "wheel", 0755, false},
        {"root", "wheel", 0645, false}, {"root", "admin", 0664, true},  {"root", "staff", 0664, false},
        {"root", "staff", 0644, true},  {"root", "staff", 0744, true},  {"root", "staff", 0654, false},
        {"root", "Wheel", 0664, false}, {"boss", "admin", 0664, true},  {"boss", "staff", 0664, false},
        {"boss", "staff", 0744, true},  {"boss", "wheel", 0662, false}, {"user", "admin", 0664, false},
        {"user", "wheel", 0464, true},  {"user", "wheel", 0444, true},  {"user", "wheel", 0064, true},
        {"user", "wheel", 0564, false}, {"user", "wheel", 0264, false}, {"user", "staff", 0444, false},
        {"user", "wheel", 0466, false}, {"Root", "wheel", 0644, false}, {"nobody", "admin", 0474, true},
    };
    for (const auto &[owner, group, mode, isAdmitted] : rows) {
        const auto ownership = ConfigurationOwnership::of(attributes(owner, group, mode));
        ASSERT_TRUE(ownership.has_value());
        EXPECT_EQ(ownership->isAdmissible(authority), isAdmitted) << ownership->description();
    }
}

TEST(ConfigurationOwnership, IsUnreadableWithoutNamesWithSpecialBitsOrAList) {
    EXPECT_EQ(ConfigurationOwnership::of(attributes("root", "wheel", 0644))->description(),
              "[root:wheel - rw-r--r--]");
    EXPECT_FALSE(ConfigurationOwnership::of(attributes("root", "wheel", 01644)).has_value());
    EXPECT_FALSE(ConfigurationOwnership::of(attributes("root", {}, 0644)).has_value());
    EXPECT_FALSE(ConfigurationOwnership::of(attributes({}, "wheel", 0644)).has_value());
    FileAttributes withList = attributes("root", "wheel", 0644);
    withList.hasAccessControlList = true;
    EXPECT_FALSE(ConfigurationOwnership::of(withList).has_value());
}

} // namespace
} // namespace velmar
