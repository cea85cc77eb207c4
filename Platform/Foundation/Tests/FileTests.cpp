#include <Foundation/FileHandle.h>
#include <Foundation/FileManager.h>
#include <Testing/TemporaryDirectory.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

template <class Case>
void expectError(const std::function<void()> &function, const std::string &text) {
    try {
        function();
        ADD_FAILURE() << "no error: " << text;
    } catch (const FileError &error) {
        EXPECT_NE(error.as<Case>(), nullptr) << error.errorDescription();
        EXPECT_EQ(error.errorDescription(), text);
    }
}

class Files : public testing::Test {
protected:
    [[nodiscard]] std::string read(const std::string &path) const { return manager.contents(path, 1000); }
    static std::function<void()> reading(const std::string &path) {
        return [path] { static_cast<void>(FileHandle::openItself(path).readAll(100)); };
    }

    const TemporaryDirectory directory;
    const FileManager manager;
};

TEST_F(Files, HandleTellsTheItemsOwnAttributes) {
    const std::string file = directory.write("file", "12345");
    ASSERT_EQ(chmod(file.c_str(), 01640), 0);
    fs::create_symlink(file, directory.path("link"));

    const auto ofFile = FileHandle::openItself(file).attributes();
    EXPECT_EQ(ofFile.kind, FileAttributes::Kind::RegularFile);
    EXPECT_EQ(ofFile.permissions, 01640U);
    EXPECT_EQ(ofFile.size, 5U);
    EXPECT_EQ(ofFile.userId, geteuid());
    EXPECT_EQ(FileHandle::openItself(directory.path("link")).attributes().kind,
              FileAttributes::Kind::SymbolicLink);
    EXPECT_EQ(manager.attributesOfItem(directory.path("link")).kind, FileAttributes::Kind::SymbolicLink);
    EXPECT_EQ(manager.attributesOfItem(directory.path()).kind, FileAttributes::Kind::Directory);
}

TEST_F(Files, HandleReadsTheItemThatWasOpened) {
    const std::string file = directory.write("file", "admitted");
    const auto handle = FileHandle::openItself(file);
    fs::rename(directory.write("other", "swapped"), file);
    EXPECT_EQ(handle.readAll(8), "admitted");
    EXPECT_EQ(handle.readAll(8), "admitted") << "from the beginning again";
    EXPECT_EQ(FileHandle::openItself(directory.write("empty", "")).readAll(0), "");
}

TEST_F(Files, HandleRefusesWhatIsNoRegularFile) {
    const std::string pipe = directory.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string link = directory.path("link");
    fs::create_symlink(directory.write("file", "x"), link);
    expectError<FileError::IsDirectory>(reading(directory.path()),
                                        "The item at '" + directory.path() + "' is a directory.");
    expectError<FileError::NotRegularFile>(reading(pipe),
                                           "The item at '" + pipe + "' is not a regular file.");
    expectError<FileError::NotRegularFile>(reading(link),
                                           "The item at '" + link + "' is not a regular file.");
    expectError<FileError::NotFound>(reading("/no/such"), "There is nothing at '/no/such'.");
    expectError<FileError::NotRegularFile>([&] { static_cast<void>(manager.contents(pipe, 100)); },
                                           "The item at '" + pipe + "' is not a regular file.");
    const std::string withNul("/etc/passwd\0.plist", 18);
    EXPECT_FALSE(manager.fileExists(withNul));
    expectError<FileError::SystemError>(reading(withNul), "The item at '" + withNul +
                                                              "' couldn't be opened: Invalid argument.");
}

TEST_F(Files, ReadingStopsAtTheLimit) {
    const std::string file = directory.write("file", "123456");
    EXPECT_EQ(manager.contents(file, 6), "123456");
    const std::string tooLarge = "The file '" + file + "' is larger than the 5 bytes allowed.";
    expectError<FileError::TooLarge>([&] { static_cast<void>(manager.contents(file, 5)); }, tooLarge);
    // The size of this file is 0 although it has content, so the size must not be trusted.
    EXPECT_EQ(manager.attributesOfItem("/proc/self/status").size, 0U);
    EXPECT_GT(manager.contents("/proc/self/status", 100000).size(), 100U);
    expectError<FileError::TooLarge>([&] { static_cast<void>(manager.contents("/proc/self/status", 10)); },
                                     "The file '/proc/self/status' is larger than the 10 bytes allowed.");
}

TEST_F(Files, HandlesAreNotInherited) {
    const std::string file = directory.write("file", "");
    const int lowestFree = dup(STDERR_FILENO);
    close(lowestFree);
    const auto handle = FileHandle::openItself(file);
    EXPECT_EQ(fcntl(lowestFree, F_GETFD), FD_CLOEXEC);
}

TEST_F(Files, ExistenceFollowsLinks) {
    const std::string link = directory.path("link");
    fs::create_symlink(directory.path("target"), link);
    EXPECT_FALSE(manager.fileExists(link));
    directory.write("target", "");
    EXPECT_TRUE(manager.fileExists(link));
    EXPECT_TRUE(manager.fileExists(directory.path()));
    EXPECT_FALSE(manager.fileExists(directory.path("target/below")));
    EXPECT_FALSE(manager.fileExists(""));
}

TEST_F(Files, ManagerMakesListsAndRemoves) {
    const std::string deep = directory.path("a/b//c/");
    manager.createDirectory(deep, 0700);
    manager.createDirectory(deep, 0700);
    manager.createFile(deep + "z", "content", 0600);
    manager.createFile(deep + "a", "", 0600);
    EXPECT_THAT(manager.contentsOfDirectory(deep), ElementsAre("a", "z"));
    EXPECT_EQ(read(deep + "z"), "content");

    const std::string taken = deep + "z";
    const std::string dangling = directory.path("dangling");
    fs::create_symlink(directory.path("elsewhere"), dangling);
    for (const std::string &path : {taken, dangling}) {
        expectError<FileError::SystemError>([&] { manager.createFile(path, "other", 0600); },
                                            "The item at '" + path + "' couldn't be created: File exists.");
    }
    EXPECT_EQ(read(taken), "content");
    const std::string full = directory.path("a");
    expectError<FileError::SystemError>([&] { manager.removeItem(full); },
                                        "The item at '" + full +
                                            "' couldn't be removed: Directory not empty.");
    manager.removeItem(taken);
    expectError<FileError::NotFound>([&] { manager.removeItem(taken); },
                                     "There is nothing at '" + taken + "'.");
}

TEST_F(Files, AtomicWritingReplacesOrLeaves) {
    const std::string file = directory.write("file", "old");
    manager.writeAtomically(file, "new", 0604);
    EXPECT_EQ(read(file), "new");
    EXPECT_EQ(manager.attributesOfItem(file).permissions, 0604U);

    fs::create_directories(directory.path("busy/full"));
    const std::string busy = directory.path("busy");
    EXPECT_THROW(manager.writeAtomically(busy, "x", 0600), FileError);
    EXPECT_THROW(manager.writeAtomically(directory.path("no/such"), "x", 0600), FileError);
    EXPECT_THAT(manager.contentsOfDirectory(directory.path()), ElementsAre("busy", "file"))
        << "nothing is left over";
}

} // namespace
} // namespace velmar
