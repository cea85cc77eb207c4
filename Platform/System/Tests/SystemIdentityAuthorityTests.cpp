#include <System/SystemIdentityAuthority.h>

#include <gtest/gtest.h>

#include <fstream>
#include <string>

#include <sched.h>
#include <stdlib.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {
namespace {

using Session = SystemIdentityAuthority::Session;

// Mounts fake account databases over those of the machine, visible to this process only.
class SystemIdentityAuthorityTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        if (geteuid() != 0 || unshare(CLONE_NEWNS) != 0 ||
            mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) {
            return;
        }
        std::string manyUsers;
        for (int number = 0; number < 2000; ++number) {
            manyUsers += (number == 0 ? "" : ",") + ("filler" + std::to_string(number));
        }
        isPrivate_ = put("/etc/passwd", "root:x:0:0:root:/root:/bin/sh\n"
                                        "mira:x:1201:1301:Mira Holm,Room 4,555:/Users/mira:/bin/sh\n"
                                        "otto:x:1202:1302:& Berg:/Users/otto:/bin/sh\n"
                                        "_x:x:1204:1302:&:/:/bin/sh\n"
                                        "plain:x:1203:1302::/Users/plain:/bin/sh\n") &&
                     put("/etc/group", "root:x:0:\nstaff:x:1302:\nadmin:x:1301:otto\n"
                                       "crowd:x:1303:" +
                                           manyUsers + ",mira\n");
    }

    void SetUp() override {
        if (!isPrivate_) {
            GTEST_SKIP() << "needs root and mount namespaces";
        }
    }

    const SystemIdentityAuthority authority;

private:
    static bool put(const char *place, const std::string &contents) {
        char path[] = "/tmp/velmar-identities-XXXXXX";
        const int descriptor = mkstemp(path);
        std::ofstream(path) << contents;
        const bool isPut =
            descriptor >= 0 && chmod(path, 0644) == 0 && mount(path, place, nullptr, MS_BIND, nullptr) == 0;
        close(descriptor);
        unlink(path);
        return isPut;
    }

    static inline bool isPrivate_ = false;
};

TEST_F(SystemIdentityAuthorityTest, FindsMembersOfPrimaryAndOtherGroups) {
    const struct {
        const char *user;
        const char *group;
        bool isMember;
    } cases[] = {
        {"mira", "admin", true},   // primary
        {"otto", "admin", true},   // listed
        {"mira", "crowd", true},   // in a record larger than the first buffer
        {"plain", "admin", false}, //
        {"root", "admin", false},  // root is not a member of every group
        {"nobody-here", "admin", false}, {"otto", "no-such-group", false}, {"", "", false},
    };
    for (const auto &each : cases) {
        EXPECT_EQ(authority.isMember(each.user, each.group), each.isMember)
            << each.user << " in " << each.group;
    }
}

TEST_F(SystemIdentityAuthorityTest, TellsFullNamesAndNumbers) {
    const std::pair<const char *, std::optional<std::string>> names[] = {
        {"mira", "Mira Holm"}, {"otto", "Otto Berg"}, {"plain", {}}, {"_x", "_x"}, {"nobody-here", {}}};
    for (const auto &[user, name] : names) {
        EXPECT_EQ(authority.fullName(user), name) << user;
    }
    EXPECT_EQ(authority.ids("mira"), (UserIds{1201, 1301}));
    EXPECT_EQ(authority.ids("nobody-here"), std::nullopt);
}

TEST_F(SystemIdentityAuthorityTest, TakesTheActiveSessionsUserInPlaceOfRoot) {
    int asked = 0;
    const SystemIdentityAuthority atScreen([&] {
        ++asked;
        return std::optional(Session{1201, "user"});
    });
    EXPECT_EQ(atScreen.processUserName(), "root");
    EXPECT_EQ(atScreen.consoleUserName(), "mira");
    EXPECT_EQ(atScreen.consoleUserName(), "mira");
    EXPECT_EQ(asked, 1);

    const std::optional<Session> noPersons[] = {{}, {{4242, "user"}}, {{1201, "greeter"}}, {{1201, ""}}};
    for (const auto &session : noPersons) {
        EXPECT_EQ(SystemIdentityAuthority([&] { return session; }).consoleUserName(), "root");
    }
}

TEST_F(SystemIdentityAuthorityTest, NeverAsksForTheSessionWhenNotRoot) {
    ASSERT_EQ(seteuid(1202), 0);
    const SystemIdentityAuthority authorityOfOtto([]() -> std::optional<Session> {
        ADD_FAILURE() << "asked";
        return Session{1201, "user"};
    });
    EXPECT_EQ(authorityOfOtto.consoleUserName(), "otto");
    ASSERT_EQ(seteuid(0) + seteuid(4242), 0);
    EXPECT_EQ(authorityOfOtto.processUserName(), "4242");
    ASSERT_EQ(seteuid(0), 0);
}

} // namespace
} // namespace velmar
