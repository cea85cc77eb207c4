#include <Desktop/LoginItem.h>

#include <Testing/TemporaryDirectory.h>

#include <gtest/gtest.h>

#include <vector>

namespace velmar {
namespace {

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
        EXPECT_NE(FileManager().contents(item.path(), 4096).find("\nExec=" + row.line + "\n"),
                  std::string::npos);
    }
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

} // namespace
} // namespace velmar
