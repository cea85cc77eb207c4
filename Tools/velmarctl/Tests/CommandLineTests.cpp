#include "CommandLineTest.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <utility>

namespace velmar {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;
using testing::StartsWith;

TEST_F(CommandLineTest, SaysNothingAboutAGoodFile) {
    EXPECT_EQ(check(document(""), ExitStatus::succeeded), "");
    EXPECT_EQ(check(document(""), ExitStatus::succeeded, "--strict"), "");
    EXPECT_EQ(check(document(""), ExitStatus::succeeded, "--json"), "[]\n");
}

TEST_F(CommandLineTest, NamesTheLineAndTheKey) {
    const struct {
        std::string content;
        const char *text; // A regular expression.
    } refused[] = {
        {document("<key>Window</key>\n<dict>\n<key>Title</key><string>T</string>\n</dict>\n"),
         "x.plist:3: error: Window: Missing required key 'OnScreen' at 'Window'\n"},
        {"<plist>\n<dict/>\n</plist>", "x.plist:2: error: Slides: Error at 'Slides'. The 'Slides' .*\n"},
        {"<plist>\n<dict>\n<foo/></dict></plist>", "x.plist:3: error: .*\n"},
        {"bplist00", "x.plist: error: .*\n"},
        {document("<key>ColorStyles</key><dict>\n<key>Z</key><dict>\n<key>Style</key><string>No</string>"
                  "</dict></dict>"),
         "x.plist:4: error: ColorStyles.Z.Style: .*\n"},
        {document("<key>General</key><dict><key>Variables</key><dict><key>A</key><string/>\n"
                  "<key>B</key><string>${X}</string></dict></dict>"),
         "x.plist:3: error: General.Variables.B: .*\n"},
        {document("", "\n<key>Condition</key><string>X</string>"),
         "x.plist:7: error: Slides.0.Containers.0.Components.0.Condition: .*\n"},
        {document("<key>Window</key><dict>\n<key>OnScreen</key><string>fullscreen</string></dict>\n"),
         "x.plist:3: warning: Window.OnScreen: .*FullScreen.*\nx.plist:3: error: Window.OnScreen: .*\n"},
    };
    for (const auto &[content, text] : refused) {
        EXPECT_THAT(check(content, ExitStatus::refused), MatchesRegex(text));
    }
}

TEST_F(CommandLineTest, WarnsOfWhatIsIgnoredInSilence) {
    const std::string file = document("<key>Admin</key><dict><key>IsAdminModeEnabled</key><true/>\n"
                                      "<key>IsAdminModeEnabled</key><false/></dict>\n"
                                      "<key>Window</key><dict>\n"
                                      "<key>OnScren</key><string>Simple</string>\n"
                                      "<key>OnScreen</key><string>Simple</string></dict>\n",
                                      "<key>Quite different</key><true/>");
    EXPECT_EQ(
        check(file, ExitStatus::succeeded),
        "x.plist:3: warning: Admin.IsAdminModeEnabled: The key 'IsAdminModeEnabled' is given more than once; "
        "the last one counts\n"
        "x.plist:5: warning: Window.OnScren: Unknown key 'OnScren' (did you mean 'OnScreen'?)\n"
        "x.plist:11: warning: Slides.0.Containers.0.Components.0.Quite different: Unknown key 'Quite "
        "different'\n");
    EXPECT_THAT(check(file, ExitStatus::refused, "--strict"),
                HasSubstr("x.plist:5: error: Window.OnScren: "));
}

TEST_F(CommandLineTest, WritesTheSameAsJSON) {
    const auto list = nlohmann::json::parse(check(
        document("<key>Admin</key><dict><key>IsAdminModeEnabled</key><true/>\n<key>Foo</key><true/></dict>\n"
                 "<key>Window</key><dict><key>Title</key><string>T</string></dict>\n"),
        ExitStatus::refused, "--json"));
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0]["severity"], "warning");
    EXPECT_EQ(list[0]["keyPath"], "Admin.Foo");
    EXPECT_EQ(list[0]["line"], 3);
    EXPECT_EQ(list[1], (nlohmann::json{{"file", "x.plist"},
                                       {"severity", "error"},
                                       {"keyPath", "Window"},
                                       {"line", 4},
                                       {"message", "Missing required key 'OnScreen' at 'Window'"},
                                       {"notes", nlohmann::json::array()}}));

    const auto refused = nlohmann::json::parse(check("bplist00", ExitStatus::refused, "--json"));
    EXPECT_TRUE(refused[0]["line"].is_null());
    EXPECT_TRUE(refused[0]["keyPath"].is_null());
}

TEST_F(CommandLineTest, SaysOnceWhyAFileIsNotRead) {
    EXPECT_EQ(run({"check", directory_.path("a b")}, ExitStatus::refused),
              "a b: error: Configuration file is missing. [file://a%20b]\n");

    std::filesystem::resize_file(directory_.write("large", ""), std::uintmax_t{65} << 20U);
    EXPECT_THAT(run({"check", "--no-admission", directory_.path("large")}, ExitStatus::refused),
                MatchesRegex("large: error: Configuration file is missing. \\[file://large\\]\n"
                             "large: note: An error occurred while retrieving the configuration file "
                             "\\[.*larger than the 67108864 bytes allowed.*\\]\n"));
}

TEST_F(CommandLineTest, ChecksEveryFile) {
    const std::string good = directory_.write("good.plist", document(""));
    const std::string bad = directory_.write("bad.plist", "<plist>\n<dict/></plist>");
    const std::string text = run({"check", "--no-admission", bad, good, bad}, ExitStatus::refused);
    EXPECT_EQ(std::ranges::count(text, '\n'), 2);
}

TEST_F(CommandLineTest, LeavesNothingInAFileToSteerTheTerminal) {
    const std::string name = "x\x1b[2J\n\x7f é\u009b\u0085\u202e\u2028\u2066\xff\xc3 🙂.plist";
    EXPECT_THAT(
        run({"check", directory_.path(name)}, ExitStatus::refused),
        StartsWith(R"(x\x1b[2J\x0a\x7f é\u009b\u0085\u202e\u2028\u2066\xff\xc3 🙂.plist: error: )"));
    const std::string json = run({"check", "--json", directory_.path(name)}, ExitStatus::refused);
    EXPECT_TRUE(std::ranges::all_of(json, [](char byte) {
        return byte == '\n' || (byte >= ' ' && byte < 0x7F);
    })) << json;
    EXPECT_THAT(nlohmann::json::parse(json)[0]["file"].get<std::string>(), EndsWith("\uFFFD 🙂.plist"));
}

TEST_F(CommandLineTest, LetsNoValueForgeALine) {
    const std::string text = check(document("<key>Window</key><dict><key>OnScreen</key>"
                                            "<string>Simple\ny.plist:7: error: forged</string></dict>"),
                                   ExitStatus::refused);
    EXPECT_THAT(text, HasSubstr("\n    y.plist:7: error: forged"));
    EXPECT_THAT(text, Not(HasSubstr("\ny.plist")));
}

TEST_F(CommandLineTest, StopsAtAThousandWarnings) {
    std::string keys;
    for (int key = 0; key < 1234; ++key) {
        keys += fmt::format("<key>Unknown{}</key><true/>\n", key);
    }
    const std::string text = check(document(keys), ExitStatus::succeeded);
    EXPECT_EQ(std::ranges::count(text, '\n'), 1001);
    EXPECT_THAT(text, EndsWith("\nx.plist: note: and 234 more\n"));
    const std::string bad = fmt::format("<plist><dict>\n{}</dict></plist>", keys);
    EXPECT_THAT(check(bad, ExitStatus::refused), HasSubstr("x.plist:1: error: Slides: "));
}

TEST_F(CommandLineTest, FailsWhenTheOutputCannotBeWritten) {
    const std::vector<std::string> commands[] = {{"check", directory_.path("x")}, {"eval", "--batch"}};
    for (const auto &arguments : commands) {
        std::ofstream out("/dev/full");
        std::istringstream in("{}\n{}\n");
        std::ostringstream err;
        EXPECT_EQ(runCommandLine(arguments, {authority_, in, out, err}), ExitStatus::failed);
        EXPECT_EQ(err.str(), "velmarctl: The output could not be written.\n");
    }
}

TEST_F(CommandLineTest, ExplainsItsUse) {
    EXPECT_THAT(run({"--help"}, ExitStatus::succeeded), HasSubstr("check"));
    const std::string help = run({"check", "--help"}, ExitStatus::succeeded);
    EXPECT_THAT(help, HasSubstr("--no-admission"));
    EXPECT_THAT(help, HasSubstr("unused names, doubtful conditions, doubtful paths, ineffective parts"));
    EXPECT_THAT(run({"--version"}, ExitStatus::succeeded),
                MatchesRegex("velmarctl [0-9.]+ \\(configuration Velmar-[0-9.]+\\)\n"));
    const std::vector<std::string> wrongUses[] = {{},
                                                  {"check"},
                                                  {"chek", "x"},
                                                  {"eval"},
                                                  {"eval", "AB", "CD"},
                                                  {"eval", "AB", "--var", "AB"},
                                                  {"eval", "AB", "--no-admission"},
                                                  {"eval", "AB", "--batch"},
                                                  {"eval", "--batch", "--explain"}};
    for (const auto &wrong : wrongUses) {
        EXPECT_THAT(run(wrong, ExitStatus::failed), IsEmpty());
        EXPECT_FALSE(complaints_.empty());
    }
}

} // namespace
} // namespace velmar
