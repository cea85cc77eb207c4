#include <Foundation/UserDefaults.h>

#include <Foundation/Descriptor.h>
#include <Foundation/PropertyList.h>
#include <Testing/TemporaryDirectory.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include <fcntl.h>
#include <sys/file.h>

namespace velmar {
namespace {

class UserDefaultsTest : public testing::Test {
protected:
    void SetUp() override { setenv("XDG_CONFIG_HOME", directory.path().c_str(), 1); }
    void TearDown() override { unsetenv("XDG_CONFIG_HOME"); }

    void put(const std::string &contents) const { directory.write("Velmar/Velmar.plist", contents); }

    const TemporaryDirectory directory;
    const FileManager &files = FileManager::defaultManager();
};

TEST_F(UserDefaultsTest, KeepsTextsBetweenInstances) {
    UserDefaults defaults("Velmar");
    EXPECT_EQ(defaults.path(), directory.path("Velmar/Velmar.plist"));
    EXPECT_EQ(defaults.string("configuration"), std::nullopt);
    defaults.set("configuration", "été & <co>.plist");
    defaults.set("other", "2");
    EXPECT_EQ(UserDefaults("Velmar").string("configuration"), "été & <co>.plist");
    EXPECT_EQ(UserDefaults("Another").string("configuration"), std::nullopt);
    EXPECT_EQ(files.attributesOfItem(defaults.path()).permissions, 0600U);

    UserDefaults("Velmar").set("configuration", "new.plist");
    EXPECT_EQ(defaults.string("configuration"), "new.plist") << "read at each use";
    EXPECT_EQ(defaults.string("other"), "2");
}

TEST_F(UserDefaultsTest, KeepsWhatItDoesNotKnow) {
    put(PropertyList(PropertyList::Dictionary({{"count", 7}})).xml());
    UserDefaults defaults("Velmar");
    EXPECT_EQ(defaults.string("count"), std::nullopt) << "no text";
    defaults.set("configuration", "a.plist");
    const auto file = PropertyList::read(files.contents(defaults.path(), 10000));
    ASSERT_NE(file.dictionary(), nullptr);
    EXPECT_EQ(*file.dictionary()->find("count"), PropertyList(7));
}

TEST_F(UserDefaultsTest, PutsADamagedFileAside) {
    for (const std::string &damaged :
         {std::string("<plist><dict><key>configuration</key>"), std::string("<plist><array/></plist>"),
          std::string(2 * 1024 * 1024, 'x')}) {
        put(damaged);
        UserDefaults defaults("Velmar");
        EXPECT_EQ(defaults.string("configuration"), std::nullopt);
        defaults.set("configuration", "a.plist");
        EXPECT_EQ(defaults.string("configuration"), "a.plist");
        const auto names = files.contentsOfDirectory(directory.path("Velmar"));
        ASSERT_EQ(names.size(), 2U);
        EXPECT_THAT(names[1], testing::MatchesRegex("Velmar\\.plist\\.damaged-......"));
        const std::string aside = directory.path("Velmar/" + names[1]);
        EXPECT_EQ(files.contents(aside, damaged.size()), damaged);
        files.removeItem(aside);
    }
}

TEST_F(UserDefaultsTest, RefusesTextsThatCannotBeStored) {
    const std::string damaged = "no property list";
    put(damaged);
    UserDefaults defaults("Velmar");
    for (const char *text : {"caf\xE9.plist", "a\x01.plist"}) {
        EXPECT_THROW(defaults.set("configuration", text), FileError) << text;
    }
    EXPECT_EQ(files.contents(defaults.path(), 100), damaged) << "not put aside";
}

TEST_F(UserDefaultsTest, DoesNotWaitForeverForAnotherProcess) {
    UserDefaults defaults("Velmar");
    defaults.set("configuration", "a.plist");
    const Descriptor other(open(directory.path("Velmar").c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    ASSERT_EQ(flock(other.number(), LOCK_EX), 0);
    EXPECT_THROW(defaults.set("configuration", "b.plist"), FileError);
    ASSERT_EQ(flock(other.number(), LOCK_UN), 0);
    EXPECT_EQ(defaults.string("configuration"), "a.plist");
}

} // namespace
} // namespace velmar
