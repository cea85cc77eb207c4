#include <csignal>
#include <fstream>
#include <sstream>
#include <thread>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/capability.h>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <Testing/TemporaryDirectory.h>
#include <logger/ConsoleDestination.h>
#include <logger/FileDestination.h>

namespace velmar {
namespace {

namespace fs = std::filesystem;

void log(BaseDestination &destination, std::string message) {
    LogRecord record;
    record.message = std::move(message);
    destination.write(std::span(&record, 1));
}

std::string contentOf(const fs::path &path) {
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return content.str();
}

struct stat attributesOf(const fs::path &path) {
    struct stat found {};
    EXPECT_EQ(lstat(path.c_str(), &found), 0) << path;
    return found;
}

class FileDestinationTest : public testing::Test {
protected:
    [[nodiscard]] fs::path at(std::string_view name) const { return fs::path(folder_.path()) / name; }
    [[nodiscard]] static DestinationSettings plain() { return {.format = "$M"}; }

private:
    TemporaryDirectory folder_;
};

TEST_F(FileDestinationTest, AppendsToWhatIsThereAndCreatesWhatIsMissing) {
    const auto path = at("a/b/velmar.log");
    for (const auto *line : {"one", "two"}) {
        FileDestination destination({.logFileURL = path, .syncAfterEachWrite = true}, plain());
        log(destination, line);
    }
    EXPECT_EQ(contentOf(path), "one\ntwo\n");
    EXPECT_EQ(attributesOf(path).st_mode & 07777, 0600U);
}

TEST_F(FileDestinationTest, NoticesThatItsFileWasRemovedOrReplaced) {
    FileDestination destination({.logFileURL = at("log")}, plain());
    log(destination, "one");
    fs::rename(at("log"), at("old"));
    log(destination, "two");
    EXPECT_EQ(contentOf(at("old")), "one\n");
    EXPECT_EQ(contentOf(at("log")), "two\n");
    std::ofstream(at("new")) << "new\n";
    fs::rename(at("new"), at("log"));
    log(destination, "three");
    EXPECT_EQ(contentOf(at("log")), "new\nthree\n");
}

TEST_F(FileDestinationTest, NeverCreatesTheRequiredFolder) {
    FileDestination destination({.logFileURL = at("ada/Library/log"), .requiredFolder = at("ada")}, plain());
    log(destination, "lost");
    EXPECT_FALSE(fs::exists(at("ada")));
    fs::create_directory(at("ada"));
    log(destination, "written");
    EXPECT_EQ(contentOf(at("ada/Library/log")), "written\n");
}

TEST_F(FileDestinationTest, RefusesWhatIsNoFileOfItsOwn) {
    std::ofstream(at("target")) << "";
    fs::create_symlink(at("target"), at("link"));
    fs::create_symlink(at("missing"), at("dangling"));
    fs::create_hard_link(at("target"), at("second"));
    ASSERT_EQ(mkfifo(at("pipe").c_str(), 0600), 0);
    const int reader = open(at("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    fs::create_directory(at("folder"));
    for (const auto *name : {"link", "dangling", "second", "pipe", "folder", "target/log", "folder/"}) {
        FileDestination destination({.logFileURL = at(name)}, plain());
        log(destination, "lost");
    }
    char byte = 0;
    EXPECT_EQ(read(reader, &byte, 1), 0);
    close(reader);
    EXPECT_EQ(contentOf(at("target")), "");
    EXPECT_FALSE(fs::exists(at("missing")));
    EXPECT_TRUE(fs::is_empty(at("folder")));
}

TEST_F(FileDestinationTest, TellsALossOnStandardErrorIfAsked) {
    for (const bool asked : {false, true}) {
        testing::internal::CaptureStderr();
        FileDestination destination({.logFileURL = at("")}, {.format = "$M", .debugPrint = asked});
        log(destination, "lost");
        EXPECT_EQ(testing::internal::GetCapturedStderr().empty(), !asked);
    }
}

// Root writes on behalf of a user who controls the folder "home".
class RootsFileDestinationTest : public FileDestinationTest {
protected:
    static constexpr FileOwner ada{.user = 61'001, .group = 61'002};

    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "needs root";
        }
        fs::permissions(at(""), fs::perms(0755));
        fs::create_directory(at("home"));
        ASSERT_EQ(chown(at("home").c_str(), ada.user, ada.group), 0);
    }

    void logTo(std::string_view path) {
        FileDestination destination({.logFileURL = at(path), .owner = ada}, plain());
        log(destination, "line");
    }
};

TEST_F(RootsFileDestinationTest, GivesWhatItCreatesToTheOwner) {
    // Only root can write to the parent of "roots".
    for (const auto *top : {"roots", "home/Library"}) {
        const auto log = fs::path(top) / "Logs/velmar.log";
        logTo(log.string());
        EXPECT_EQ(contentOf(at(log.string())), "line\n");
        for (const auto &path : {fs::path(top), log.parent_path(), log}) {
            EXPECT_EQ(attributesOf(at(path.string())).st_uid, ada.user) << path;
            EXPECT_EQ(attributesOf(at(path.string())).st_gid, ada.group) << path;
        }
    }
    EXPECT_EQ(attributesOf(at("home/..")).st_uid, 0U) << "what was there keeps its owner";
    EXPECT_EQ(setfsuid(static_cast<uid_t>(-1)), 0) << "the thread has its own rights again";
}

TEST_F(RootsFileDestinationTest, WritesNothingWhereTheOwnersRightsCannotBeHad) {
    for (const unsigned capability : {CAP_SETUID, CAP_SETGID}) {
        std::thread([&] {
            __user_cap_header_struct header{.version = _LINUX_CAPABILITY_VERSION_3, .pid = 0};
            __user_cap_data_struct data[_LINUX_CAPABILITY_U32S_3] = {};
            ASSERT_EQ(syscall(SYS_capget, &header, data), 0);
            data[0].effective &= ~(1U << capability);
            ASSERT_EQ(syscall(SYS_capset, &header, data), 0);
            logTo("home/Library/log");
        }).join();
        EXPECT_TRUE(fs::is_empty(at("home"))) << capability;
    }
}

// Neither a link of the owner nor a group of root gives access.
TEST_F(RootsFileDestinationTest, LendsTheOwnerNoneOfRootsRights) {
    constexpr gid_t group = 61'010;
    fs::create_directory(at("secret"));
    fs::create_directory_symlink(at("secret"), at("home/Library"));
    fs::create_directory(at("shared"));
    ASSERT_EQ(chown(at("shared").c_str(), 0, group), 0);
    fs::permissions(at("shared"), fs::perms(0775));
    std::vector<gid_t> after(1);
    std::thread([&] {
        // The system call affects this thread only, unlike the C library's function.
        ASSERT_EQ(syscall(SYS_setgroups, 1, &group), 0);
        logTo("shared/log");
        logTo("shared/folder/log");
        logTo("home/Library/log");
        EXPECT_EQ(getgroups(1, after.data()), 1);
    }).join();
    EXPECT_TRUE(fs::is_empty(at("shared")) && fs::is_empty(at("secret")));
    EXPECT_EQ(after[0], group) << "the thread has its own rights again";
}

TEST(ConsoleDestination, SurvivesAReaderThatWentAway) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    close(ends[0]);
    ConsoleDestination destination({}, false, ends[1]);
    log(destination, "lost"); // an unblocked SIGPIPE would end the process
    close(ends[1]);
    sigset_t pending;
    sigpending(&pending);
    EXPECT_EQ(sigismember(&pending, SIGPIPE), 0);
}

TEST(ConsoleDestination, WritesAllForAReaderThatIsSlow) {
    for (const int flags : {0, O_NONBLOCK}) {
        int ends[2];
        ASSERT_EQ(pipe2(ends, flags), 0);
        fcntl(ends[0], F_SETFL, 0);
        const std::string big(1 << 20, 'x');
        std::thread writer([&] {
            ConsoleDestination destination({.format = "$M"}, false, ends[1]);
            log(destination, big);
            close(ends[1]);
        });
        std::string block(1 << 16, '\0');
        std::size_t received = 0;
        for (ssize_t count = 0; (count = read(ends[0], block.data(), block.size())) > 0;) {
            received += static_cast<std::size_t>(count);
        }
        writer.join();
        close(ends[0]);
        EXPECT_EQ(received, big.size() + 1);
    }
}

} // namespace
} // namespace velmar
