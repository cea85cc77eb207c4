#include <Admission/ConfigurationFile.h>

#include <Admission/ConfigurationLocator.h>
#include <Admission/ConfigurationOwnership.h>
#include <Base/Domain.h>
#include <Base/VelmarError.h>
#include <Foundation/UserDefaults.h>
#include <Support/RecordedLog.h>
#include <System/SystemIdentityAuthority.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestIdentityAuthority.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velmar {
namespace {

using testing::ElementsAre;

class ConfigurationLocatorTest : public testing::Test {
protected:
    ConfigurationLocatorTest() { ::setenv("XDG_CONFIG_HOME", directory_.path("config").c_str(), 1); }
    ~ConfigurationLocatorTest() override { ::unsetenv("XDG_CONFIG_HOME"); }

    ConfigurationLocator locator(const std::vector<std::string> &arguments = {}) {
        return ConfigurationLocator(LaunchOptions::parse(arguments), defaults_.emplace(Domain::defaultsSuite),
                                    FileManager::defaultManager(),
                                    {URL::file(directory_.path("Managed Preferences"), true),
                                     URL::file(directory_.path("Application Support"), true)});
    }

    TemporaryDirectory directory_;
    std::optional<UserDefaults> defaults_; // Stored in directory_.
    RecordedLog log_;
};

TEST_F(ConfigurationLocatorTest, TakesTheNameFromTheOptions) {
    const struct {
        std::vector<std::string> arguments;
        const char *name;
    } cases[] = {
        {{"velmar"}, "Velmar.plist"},
        {{"velmar", "-c", "foo", "--config"}, "foo.plist"},
        {{"velmar", "-c", "foo", "-c", "bar"}, "foo.plist"},
        {{"velmar", "-c", "--config", "bar"}, "--config.plist"},
        {{"velmar", "-c=foo"}, "Velmar.plist"},
        {{"velmar", "-c", ""}, ".plist"},
    };
    for (const auto &[arguments, name] : cases) {
        EXPECT_EQ(locator(arguments).configurationName(), name)
            << fmt::format("{}", fmt::join(arguments, " "));
    }
}

TEST_F(ConfigurationLocatorTest, GoesOnWithANameThatCannotBeRemembered) {
    directory_.write("config/Velmar", "a file where the directory belongs");
    EXPECT_EQ(locator({"-c", "foo", "--save"}).configurationName(), "foo.plist");
    ASSERT_EQ(log_.lines().size(), 1U);
    EXPECT_TRUE(log_.lines()[0].starts_with("warning: Unable to save the configuration name 'foo.plist' ["));
}

TEST_F(ConfigurationLocatorTest, KeepsAnAbsoluteNameBelowThePlaces) {
    const std::string outside = directory_.write("outside.plist", "");
    EXPECT_THROW(static_cast<void>(locator().findConfigurationFile(outside)), VelmarError);
    const std::string inside = directory_.write("Managed Preferences" + outside, "");
    EXPECT_EQ(std::filesystem::path(locator().findConfigurationFile(outside).path()).lexically_normal(),
              inside);
}

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
    EXPECT_FALSE(ConfigurationOwnership::of(attributes("root", "wheel", 01644)).has_value());
    EXPECT_FALSE(ConfigurationOwnership::of(attributes("root", {}, 0644)).has_value());
    EXPECT_FALSE(ConfigurationOwnership::of(attributes({}, "wheel", 0644)).has_value());
    FileAttributes withList = attributes("root", "wheel", 0644);
    withList.hasAccessControlList = true;
    EXPECT_FALSE(ConfigurationOwnership::of(withList).has_value());
}

// Only root can change the owner of a file.
class RealOwnershipTest : public testing::Test {
protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "needs root";
        }
        setMode(0644);
    }
    void setMode(::mode_t mode) { ASSERT_EQ(::chmod(path_.c_str(), mode), 0); }

    ConfigurationFile file() const { return ConfigurationFile(URL::file(path_)); }

    TemporaryDirectory directory_;
    std::string path_ = directory_.write("a configuration.plist", "content");
    RecordedLog log_;
    SystemIdentityAuthority authority_{[] { return std::nullopt; }};
};

// Format of the kernel's attribute: a version, then a tag, permissions and an id for each entry.
TEST_F(RealOwnershipTest, RefusesAnAccessControlListThatTheModeHides) {
    const struct {
        std::uint32_t version = 2;
        struct {
            std::uint16_t tag;
            std::uint16_t rights;
            std::uint32_t number;
        } entries[5] = {{0x01, 6, ~0U}, {0x02, 6, 65534}, {0x04, 4, ~0U}, {0x10, 4, ~0U}, {0x20, 4, ~0U}};
    } list;
    if (::setxattr(path_.c_str(), "system.posix_acl_access", &list, sizeof list, 0) != 0) {
        GTEST_SKIP() << "the file system keeps no access control lists";
    }
    EXPECT_TRUE(FileHandle::openItself(path_).attributes().hasAccessControlList);
    try {
        file().hasConfigFileCorrectPermissions(authority_);
        ADD_FAILURE() << "admitted";
    } catch (const VelmarError &error) {
        EXPECT_NE(error.as<VelmarError::IncorrectPermissionsOnConfigFile>(), nullptr);
    }
    EXPECT_EQ(log_.takeLines().size(), 1U);
    ASSERT_EQ(::removexattr(path_.c_str(), "system.posix_acl_access"), 0);
    setMode(0644);
    file().hasConfigFileCorrectPermissions(authority_);
}

TEST_F(RealOwnershipTest, ReadsWhatItJudged) {
    const ConfigurationFile judged = file();
    judged.hasConfigFileCorrectPermissions(authority_);
    EXPECT_THAT(log_.lines(), ElementsAre());
    std::filesystem::rename(directory_.write("other", "another content"), path_);
    setMode(0666);
    EXPECT_EQ(judged.content(), "content");
    judged.hasConfigFileCorrectPermissions(authority_);
    EXPECT_EQ(file().content(), "another content") << "opened anew";
}

} // namespace
} // namespace velmar
