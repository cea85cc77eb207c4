#include <Desktop/LoginItem.h>

#include <Foundation/UserAccount.h>
#include <Testing/TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

#include <unistd.h>

namespace velmar {
namespace {

std::string execLine(const std::string &path) {
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Exec=")) {
            return line.substr(5);
        }
    }
    return {};
}

TEST(LoginItem, QuotesItsCommandTwice) {
    const TemporaryDirectory directory;
    const LoginItem item(directory.path() + "/autostart");
    struct Case {
        std::vector<std::string> command;
        std::string line;
    };
    for (const Case &row :
         {Case{{"/usr/bin/velmar"}, R"("/usr/bin/velmar")"},
          Case{{"/opt/v", "-c", "first day"}, R"("/opt/v" "-c" "first day")"},
          Case{{"/opt/v", R"(a"b`c$d)"}, R"("/opt/v" "a\\"b\\`c\\$d")"},
          Case{{R"(/opt/back\slash)"}, R"("/opt/back\\\\slash")"}, Case{{"/opt/100%"}, R"("/opt/100%%")"}}) {
        item.enable(row.command);
        EXPECT_EQ(execLine(item.path()), row.line);
    }
}

TEST(LoginItem, LiesWithTheAccountWhereTheEnvironmentNamesNoHome) {
    const char *home = std::getenv("HOME");
    const std::string former = home != nullptr ? home : "";
    unsetenv("HOME");
    unsetenv("XDG_CONFIG_HOME");
    EXPECT_EQ(LoginItem::userDirectory(),
              UserAccount::numbered(geteuid()).value().homeDirectory + "/.config/autostart");
    setenv("HOME", former.c_str(), 1);
}

TEST(LoginItem, IsWrittenOnlyWhenItDiffers) {
    struct Counting : FileManager {
        void writeAtomically(const std::string &path, std::string_view contents,
                             std::uint32_t mode) const override {
            ++writings;
            FileManager::writeAtomically(path, contents, mode);
        }
        mutable int writings = 0;
    } files;
    const TemporaryDirectory directory;
    const LoginItem item(directory.path(), files);
    const std::pair<std::vector<std::string>, int> cases[] = {
        {{"/opt/v", "-c", "a"}, 1}, {{"/opt/v", "-c", "a"}, 1}, {{"/opt/v", "-c", "b"}, 2}, {{"/opt/v"}, 3}};
    for (const auto &[command, writings] : cases) {
        item.enable(command);
        EXPECT_EQ(files.writings, writings);
    }
}

TEST(LoginItem, TellsWhenItCannotBeWritten) {
    const LoginItem item("/dev/null/autostart");
    EXPECT_THROW(item.enable(std::vector<std::string>{"/usr/bin/velmar"}), FileError);
}

} // namespace
} // namespace velmar
