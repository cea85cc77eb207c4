#include <Managers/ConfigurationFile.h>

#include <Models/VelmarError.h>
#include <Support/RecordedLog.h>
#include <System/SystemIdentityAuthority.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestIdentityAuthority.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdint>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velmar {
namespace {

using testing::ElementsAre;
using testing::MatchesRegex;

class ConfigurationFileTest : public testing::Test {
protected:
    ConfigurationFile file() const { return ConfigurationFile(URL::file(path_)); }

    // Refused, with this line before; where it must be the path itself it stands as {}.
    template <class Authority>
    void expectRefusal(const Authority &authority, const std::string &line) {
        try {
            file().hasConfigFileCorrectPermissions(authority);
            ADD_FAILURE() << "admitted; expected " << line;
        } catch (const VelmarError &error) {
            ASSERT_TRUE(error.as<VelmarError::IncorrectPermissionsOnConfigFile>());
            EXPECT_EQ(error.as<VelmarError::IncorrectPermissionsOnConfigFile>()->path, path_);
        }
        EXPECT_THAT(log_.takeLines(), ElementsAre(fmt::format(fmt::runtime(line), path_)));
    }

    void expectUnreadable() {
        try {
            static_cast<void>(file().content());
            ADD_FAILURE() << "was read";
        } catch (const VelmarError &error) {
            ASSERT_TRUE(error.as<VelmarError::MissingConfigurationFile>());
            EXPECT_EQ(error.as<VelmarError::MissingConfigurationFile>()->path,
                      URL::file(path_).absoluteString());
        }
        EXPECT_THAT(log_.takeLines(),
                    ElementsAre(MatchesRegex(
                        "error: An error occurred while retrieving the configuration file \\[.+\\]")));
    }

    TemporaryDirectory directory_;
    std::string path_ = directory_.write("a configuration.plist", "content");
    RecordedLog log_;
};

const std::string unreadableOwner =
    "error: Unable to read the permissions and owner of the config file at '{}'";
const std::string invalidOwner = "error: Config file at '{}' has the following invalid owner/permissions:\n ";

// Owners other than one's own need root.
class RealOwnershipTest : public ConfigurationFileTest {
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

    SystemIdentityAuthority authority_{[] { return std::nullopt; }};
};

TEST_F(RealOwnershipTest, ReportsWhatItRefuses) {
    set(0, 0, 0664);
    expectRefusal(authority_, invalidOwner + "[root:root - rw-rw-r--]");
    set(1, 0, 0644); // "daemon" in every Debian
    expectRefusal(authority_, invalidOwner + "[daemon:root - rw-r--r--]");
    set(0, 0, 01644);
    expectRefusal(authority_, unreadableOwner);
    set(0, 3'999'999'999U, 0644);
    expectRefusal(authority_, unreadableOwner);
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
    expectRefusal(authority_, unreadableOwner);
    ASSERT_EQ(::removexattr(path_.c_str(), "system.posix_acl_access"), 0);
    set(0, 0, 0644);
    file().hasConfigFileCorrectPermissions(authority_);
}

TEST_F(RealOwnershipTest, JudgesALinkAsTheLink) {
    set(0, 0, 0644);
    const std::string link = directory_.path("link.plist");
    std::filesystem::create_symlink(path_, link);
    path_ = link;
    expectRefusal(authority_, invalidOwner + "[root:root - rwxrwxrwx]");
    expectUnreadable();
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

TEST_F(ConfigurationFileTest, ReadsOnlyRegularFilesOfUpToSixtyFourMebibytes) {
    std::filesystem::resize_file(path_, ConfigurationFile::largestSize);
    EXPECT_EQ(file().content().size(), ConfigurationFile::largestSize);
    std::filesystem::resize_file(path_, ConfigurationFile::largestSize + 1);
    expectUnreadable();
    std::filesystem::remove(path_);
    expectUnreadable();
    expectRefusal(TestIdentityAuthority(), unreadableOwner);
    std::filesystem::create_directory(path_);
    expectUnreadable();
    std::filesystem::remove(path_);
    ASSERT_EQ(::mkfifo(path_.c_str(), 0600), 0);
    expectUnreadable();
}

} // namespace
} // namespace velmar
