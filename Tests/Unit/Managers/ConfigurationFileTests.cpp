#include <Managers/ConfigurationFile.h>

#include <Models/VelmarError.h>
#include <Support/RecordedLog.h>
#include <System/SystemIdentityAuthority.h>
#include <Testing/TemporaryDirectory.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velmar {
namespace {

using testing::ElementsAre;

// Owners other than one's own need root.
class RealOwnershipTest : public testing::Test {
protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "needs root";
        }
    }
    void set(::uid_t user, ::gid_t group, ::mode_t mode) {
        ASSERT_EQ(::lchown(path_.c_str(), user, group), 0);
        ASSERT_EQ(::chmod(path_.c_str(), mode), 0);
    }

    ConfigurationFile file() const { return ConfigurationFile(URL::file(path_)); }

    // Refused, with this line before; where it must be the path itself it stands as {}.
    void expectRefusal(const std::string &line) {
        try {
            file().hasConfigFileCorrectPermissions(authority_);
            ADD_FAILURE() << "admitted; expected " << line;
        } catch (const VelmarError &error) {
            ASSERT_TRUE(error.as<VelmarError::IncorrectPermissionsOnConfigFile>());
            EXPECT_EQ(error.as<VelmarError::IncorrectPermissionsOnConfigFile>()->path, path_);
        }
        EXPECT_THAT(log_.takeLines(), ElementsAre(fmt::format(fmt::runtime(line), path_)));
    }

    TemporaryDirectory directory_;
    std::string path_ = directory_.write("a configuration.plist", "content");
    RecordedLog log_;
    SystemIdentityAuthority authority_{[] { return std::nullopt; }};
};

const std::string unreadableOwner =
    "error: Unable to read the permissions and owner of the config file at '{}'";
const std::string invalidOwner = "error: Config file at '{}' has the following invalid owner/permissions:\n ";

TEST_F(RealOwnershipTest, ReportsWhatItRefuses) {
    set(0, 0, 0664);
    expectRefusal(invalidOwner + "[root:root - rw-rw-r--]");
    set(1, 0, 0644); // "daemon" in every Debian
    expectRefusal(invalidOwner + "[daemon:root - rw-r--r--]");
    set(0, 0, 01644);
    expectRefusal(unreadableOwner);
    set(0, 3'999'999'999U, 0644);
    expectRefusal(unreadableOwner);
    std::filesystem::remove(path_);
    expectRefusal(unreadableOwner);
}

// The attribute as the kernel keeps it: a version, then a tag, rights and a number each.
TEST_F(RealOwnershipTest, RefusesAnAccessControlListThatTheModeHides) {
    const struct {
        std::uint32_t version = 2;
        struct {
            std::uint16_t tag;
            std::uint16_t rights;
            std::uint32_t number;
        } entries[5] = {{0x01, 6, ~0U}, {0x02, 6, 65534}, {0x04, 4, ~0U}, {0x10, 4, ~0U}, {0x20, 4, ~0U}};
    } list;
    set(0, 0, 0644);
    if (::setxattr(path_.c_str(), "system.posix_acl_access", &list, sizeof list, 0) != 0) {
        GTEST_SKIP() << "the file system keeps no access control lists";
    }
    EXPECT_TRUE(FileHandle::openItself(path_).attributes().hasAccessControlList);
    expectRefusal(unreadableOwner);
    ASSERT_EQ(::removexattr(path_.c_str(), "system.posix_acl_access"), 0);
    set(0, 0, 0644);
    file().hasConfigFileCorrectPermissions(authority_);
}

TEST_F(RealOwnershipTest, ReadsWhatItJudged) {
    set(0, 0, 0644);
    const ConfigurationFile judged = file();
    judged.hasConfigFileCorrectPermissions(authority_);
    EXPECT_THAT(log_.lines(), ElementsAre());
    std::filesystem::rename(directory_.write("other", "another content"), path_);
    ASSERT_EQ(::chmod(path_.c_str(), 0666), 0);
    EXPECT_EQ(judged.content(), "content");
    judged.hasConfigFileCorrectPermissions(authority_);
    EXPECT_EQ(file().content(), "another content") << "opened anew";
}

} // namespace
} // namespace velmar
