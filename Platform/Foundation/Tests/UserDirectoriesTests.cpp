#include <Foundation/UserDirectories.h>

#include <Foundation/UserAccount.h>
#include <Testing/TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

namespace velmar {
namespace {

namespace fs = std::filesystem;

// Leaves only HOME set after each test.
class UserDirectoriesTest : public testing::Test {
protected:
    void TearDown() override {
        with(nullptr, home_.c_str());
        dataWith(nullptr, nullptr);
    }

    static std::string with(const char *configuration, const char *home) {
        set("XDG_CONFIG_HOME", configuration);
        set("HOME", home);
        return UserDirectories::configuration();
    }

    static std::vector<std::string> dataWith(const char *own, const char *others) {
        set("XDG_DATA_HOME", own);
        set("XDG_DATA_DIRS", others);
        return UserDirectories::data();
    }

    static std::string ofAccount() {
        return UserAccount::numbered(geteuid()).value_or(UserAccount()).homeDirectory + "/.config";
    }

    const TemporaryDirectory directory;

private:
    static void set(const char *name, const char *value) {
        value != nullptr ? setenv(name, value, 1) : unsetenv(name);
    }

    const std::string home_ = std::getenv("HOME") != nullptr ? std::getenv("HOME") : "";
};

TEST_F(UserDirectoriesTest, TakesTheFirstAbsolutePath) {
    const std::string own = directory.path();
    const std::string missing = directory.path("not/there/yet");
    EXPECT_EQ(with(own.c_str(), "/"), own);
    EXPECT_EQ(with(missing.c_str(), "/"), missing);
    for (const char *none : {static_cast<const char *>(nullptr), "", "relative/path"}) {
        EXPECT_EQ(with(none, own.c_str()), own + "/.config");
        EXPECT_EQ(with(none, none), ofAccount());
    }
}

TEST_F(UserDirectoriesTest, ListTheOwnDataFirst) {
    using List = std::vector<std::string>;
    const std::string own = directory.path();
    with(nullptr, own.c_str());
    EXPECT_EQ(dataWith(nullptr, nullptr), (List{own + "/.local/share", "/usr/local/share", "/usr/share"}));
    EXPECT_EQ(dataWith(own.c_str(), "/usr/share:relative::/opt"), (List{own, "/usr/share", "/opt"}));
    EXPECT_EQ(dataWith("relative", ":"), (List{own + "/.local/share", "/usr/local/share", "/usr/share"}));
}

TEST_F(UserDirectoriesTest, OfRootAreNeverThoseOfSomebodyElse) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs root";
    }
    const std::string theirs = directory.path("theirs");
    fs::create_directory(theirs);
    ASSERT_EQ(chown(theirs.c_str(), 65534, 65534), 0);
    const std::string open = directory.path("open");
    fs::create_directory(open);
    ASSERT_EQ(chmod(open.c_str(), 01777), 0);
    const std::string below = theirs + "/roots"; // other users can replace it
    fs::create_directory(below);
    const std::string link = directory.path("link");
    fs::create_symlink(directory.path(), link);
    for (const std::string &place : {theirs, theirs + "/", theirs + "/missing", open, open + "/missing",
                                     below, link, link + "/", theirs + "/missing/../x"}) {
        EXPECT_EQ(with(place.c_str(), place.c_str()), ofAccount()) << place;
        EXPECT_EQ(with(place.c_str(), directory.path().c_str()), directory.path() + "/.config") << place;
    }

    ASSERT_EQ(chmod(directory.path().c_str(), 0755), 0);
    ASSERT_EQ(seteuid(65534), 0);
    const std::string ofTheirs = with(nullptr, theirs.c_str());
    ASSERT_EQ(seteuid(0), 0);
    EXPECT_EQ(ofTheirs, theirs + "/.config") << "their own process";
}

} // namespace
} // namespace velmar
