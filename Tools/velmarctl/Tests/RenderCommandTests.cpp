#include "CommandLineTest.h"

namespace velmar {
namespace {

using testing::HasSubstr;

class RenderCommandTest : public CommandLineTest {};

TEST_F(RenderCommandTest, SaysInOneSentenceWhatIsWrongWithAnOption) {
    const std::string file = write(document(""));
    const std::string size = "is no size: it is WxH in points, such as 800x600, each from 1 to 8192.";
    const std::string scale = "is no scale: it is a number from 0.5 to 4.";
    for (const auto &[option, value, sentence] : std::vector<std::array<std::string, 3>>{
             {"--size", "800", size},
             {"--size", "800x", size},
             {"--size", "0x600", size},
             {"--size", "800x8193", size},
             {"--size", "-8x600", size},
             {"--scale", "two", scale},
             {"--scale", "0.49", scale},
             {"--scale", "nan", scale},
             {"--language", "", "'' is no language: it is a code, such as de."},
             {"--var", "NAME", "NAME=VALUE has no '='"}}) {
        EXPECT_EQ(run({"render", file, "--out", directory_.path("out"), option, value}, ExitStatus::failed),
                  "");
        EXPECT_THAT(complaints_, HasSubstr(sentence)) << option << ' ' << value;
    }
    EXPECT_EQ(run({"render", file}, ExitStatus::failed), "");
    EXPECT_THAT(complaints_, HasSubstr("--out is required"));
}

TEST_F(RenderCommandTest, RefusesWhatCheckRefusesInTheSameLines) {
    for (const std::string &content : {document("<key>Window</key><dict/>"), document("<key>Window</key>"),
                                       document("<key>Slide</key><string/><key>Window</key><true/>")}) {
        const std::string file = write(content);
        const std::string lines = run({"check", file}, ExitStatus::refused);
        EXPECT_EQ(run({"render", file, "--out", directory_.path("out")}, ExitStatus::refused), lines);
        EXPECT_EQ(complaints_, "");
    }
}

} // namespace
} // namespace velmar
