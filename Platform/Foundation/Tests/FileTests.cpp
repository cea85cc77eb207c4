#include <Foundation/FileHandle.h>
#include <Foundation/FileManager.h>
#include <Testing/TemporaryDirectory.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmar {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

template <class Case, class Function>
void expectError(const Function &function, const std::string &text) {
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
    std::string write(const std::string &name, const std::string &contents) const {
        std::ofstream(directory.path(name)) << contents;
        return directory.path(name);
    }
    static std::string read(const std::string &path) {
        std::ostringstream contents;
        contents << std::ifstream(path).rdbuf();
        return contents.str();
    }

    const TemporaryDirectory directory;
    const FileManager manager;
};

TEST_F(Files, HandleTellsTheItemsOwnAttributes) {
    const std::string file = write("file", "12345");
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

TEST_F(Files, AttributesNameOwners) {
    const std::string file = write("file", "");
    if (chown(file.c_str(), 0, 4242424) != 0)
        GTEST_SKIP() << "needs root";
    const auto attributes = manager.attributesOfItem(file);
    EXPECT_EQ(attributes.ownerName, "root");
    EXPECT_EQ(attributes.groupId, 4242424U);
    EXPECT_EQ(attributes.groupName, std::nullopt);
}

TEST_F(Files, HandleReadsTheItemThatWasOpened) {
    const std::string file = write("file", "admitted");
    const auto handle = FileHandle::openItself(file);
    fs::rename(write("other", "swapped"), file);
    EXPECT_EQ(handle.readAll(8), "admitted");
    EXPECT_EQ(handle.readAll(8), "admitted") << "from the beginning again";
    EXPECT_EQ(FileHandle::openItself(write("empty", "")).readAll(0), "");
}

TEST_F(Files, HandleRefusesWhatIsNoRegularFile) {
    const std::string pipe = directory.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const std::string link = directory.path("link");
    fs::create_symlink(write("file", "x"), link);
    const auto reading = [](const std::string &path) {
        return [path] { static_cast<void>(FileHandle::openItself(path).readAll(100)); };
    };
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
    const std::string file = write("file", "123456");
    EXPECT_EQ(manager.contents(file, 6), "123456");
    const std::string text = "The file '" + file + "' is larger than the 5 bytes allowed.";
    expectError<FileError::TooLarge>([&] { static_cast<void>(manager.contents(file, 5)); }, text);
    expectError<FileError::TooLarge>([&] { static_cast<void>(FileHandle::openItself(file).readAll(5)); },
                                     text);
    // Its size says 0 and its content is longer: the size is not what is trusted.
    EXPECT_EQ(manager.attributesOfItem("/proc/self/status").size, 0U);
    EXPECT_GT(manager.contents("/proc/self/status", 100000).size(), 100U);
    expectError<FileError::TooLarge>([&] { static_cast<void>(manager.contents("/proc/self/status", 10)); },
                                     "The file '/proc/self/status' is larger than the 10 bytes allowed.");
}

TEST_F(Files, HandlesAreNotInherited) {
    const std::string file = write("file", "");
    const int lowestFree = dup(STDERR_FILENO);
    close(lowestFree);
    const auto handle = FileHandle::openItself(file);
    EXPECT_EQ(fcntl(lowestFree, F_GETFD), FD_CLOEXEC);
}

TEST_F(Files, ExistenceFollowsLinks) {
    const std::string link = directory.path("link");
    fs::create_symlink(directory.path("target"), link);
    EXPECT_FALSE(manager.fileExists(link));
    write("target", "");
    EXPECT_TRUE(manager.fileExists(link));
    EXPECT_TRUE(manager.fileExists(directory.path()));
    EXPECT_FALSE(manager.fileExists(directory.path("target/below")));
    EXPECT_FALSE(manager.fileExists(""));
}

TEST_F(Files, ManagerMakesListsAndRemoves) {
    const std::string deep = directory.path("a/b//c/");
    manager.createDirectory(deep, 0700);
    manager.createDirectory(deep, 0700);
    EXPECT_TRUE(fs::is_directory(deep));
    manager.createFile(deep + "z", "content", 0600);
    manager.createFile(deep + "a", "", 0600);
    EXPECT_THAT(manager.contentsOfDirectory(deep), ElementsAre("a", "z"));
    EXPECT_EQ(read(deep + "z"), "content");

    const std::string taken = deep + "z";
    expectError<FileError::SystemError>([&] { manager.createFile(taken, "other", 0600); },
                                        "The item at '" + taken + "' couldn't be created: File exists.");
    EXPECT_EQ(read(taken), "content");
    const std::string dangling = directory.path("dangling");
    fs::create_symlink(directory.path("elsewhere"), dangling);
    expectError<FileError::SystemError>([&] { manager.createFile(dangling, "x", 0600); },
                                        "The item at '" + dangling + "' couldn't be created: File exists.");
    const std::string full = directory.path("a");
    expectError<FileError::SystemError>([&] { manager.removeItem(full); },
                                        "The item at '" + full +
                                            "' couldn't be removed: Directory not empty.");
    manager.removeItem(taken);
    expectError<FileError::NotFound>([&] { manager.removeItem(taken); },
                                     "There is nothing at '" + taken + "'.");
}

TEST_F(Files, AtomicWritingReplacesOrLeaves) {
    const std::string file = write("file", "old");
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
