#include <CommandLine.h>

#include <Support/TemporaryDirectory.h>
#include <Testing/TestIdentityAuthority.h>

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <string_view>

#include <sys/stat.h>

namespace velmar {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

constexpr std::string_view slides = R"(<key>Slides</key>
<array><dict><key>Containers</key><array><dict>
<key>Components</key><array><dict>
<key>Type</key><string>Text</string><key>Text</key><string>Hello.</string>
</dict></array></dict></array></dict></array>
)";

class CommandLineTest : public testing::Test {
protected:
    // The output without the directory's path, wherever it stands.
    std::string run(std::vector<std::string> arguments, ExitStatus expected) {
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(runCommandLine(std::move(arguments), authority_, out, err), expected)
            << out.str() << err.str();
        complaints_ = err.str();
        std::string text = out.str();
        const std::string directory = directory_.path() + '/';
        for (auto at = text.find(directory); at != std::string::npos; at = text.find(directory)) {
            text.erase(at, directory.size());
        }
        return text;
    }

    std::string check(std::string_view content, ExitStatus expected,
                      const std::string &option = "--no-admission") {
        return run({"check", option, "--no-admission", write(content)}, expected);
    }

    std::string write(std::string_view content) const { return directory_.write("x.plist", content); }

    static std::string document(std::string_view keys) {
        return fmt::format("<plist version=\"1.0\"><dict>\n{}{}</dict></plist>\n", keys, slides);
    }

    TemporaryDirectory directory_;
    TestIdentityAuthority authority_;
    std::string complaints_;
};

TEST_F(CommandLineTest, SaysNothingAboutAGoodFile) {
    EXPECT_EQ(check(document(""), ExitStatus::wouldRun), "");
    EXPECT_EQ(check(document(""), ExitStatus::wouldRun, "--strict"), "");
    EXPECT_EQ(check(document(""), ExitStatus::wouldRun, "--json"), "[]\n");
}

TEST_F(CommandLineTest, NamesTheLineAndTheKeyOfARefusal) {
    EXPECT_EQ(check(document("<key>Window</key>\n<dict>\n<key>Title</key><string>T</string>\n</dict>\n"),
                    ExitStatus::refused),
              "x.plist:3: error: Window: Missing required key 'OnScreen' at 'Window'\n");
    EXPECT_EQ(
        check("<plist>\n<dict/>\n</plist>", ExitStatus::refused),
        "x.plist:2: error: Slides: Error at 'Slides'. The 'Slides' configuration array should be specified "
        "and cannot be empty when 'Window.OnScreen' is set to 'Simple', 'BlurredBackground', or "
        "'Fullscreen'.\n");
    EXPECT_THAT(check("<plist>\n<dict>\n<foo/></dict></plist>", ExitStatus::refused),
                StartsWith("x.plist:3: error: "));
    EXPECT_THAT(check("bplist00", ExitStatus::refused), StartsWith("x.plist: error: "));
}

TEST_F(CommandLineTest, WarnsOfWhatIsIgnoredInSilence) {
    const std::string file = document("<key>Admin</key><dict><key>IsAdminModeEnabled</key><true/>\n"
                                      "<key>IsAdminModeEnabled</key><false/></dict>\n"
                                      "<key>Window</key><dict>\n"
                                      "<key>OnScren</key><string>Simple</string>\n"
                                      "<key>OnScreen</key><string>Simple</string></dict>\n");
    EXPECT_EQ(
        check(file, ExitStatus::wouldRun),
        "x.plist:3: warning: Admin.IsAdminModeEnabled: The key 'IsAdminModeEnabled' is given more than once; "
        "the last one counts\n"
        "x.plist:5: warning: Window.OnScren: Unknown key 'OnScren' (did you mean 'OnScreen'?)\n");
    EXPECT_THAT(check(file, ExitStatus::refused, "--strict"),
                HasSubstr("x.plist:5: error: Window.OnScren: "));
}

TEST_F(CommandLineTest, ExplainsAValueThatDiffersOnlyInCase) {
    const std::string text =
        check(document("<key>Window</key><dict>\n<key>OnScreen</key><string>fullscreen</string></dict>\n"),
              ExitStatus::refused);
    EXPECT_THAT(text, HasSubstr("x.plist:3: warning: Window.OnScreen: "));
    EXPECT_THAT(text, HasSubstr("FullScreen"));
    EXPECT_THAT(text, HasSubstr("x.plist:3: error: Window.OnScreen: "));
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
                                       {"message", "Missing required key 'OnScreen' at 'Window'"}}));

    const auto refused = nlohmann::json::parse(check("bplist00", ExitStatus::refused, "--json"));
    EXPECT_TRUE(refused[0]["line"].is_null());
    EXPECT_TRUE(refused[0]["keyPath"].is_null());
}

TEST_F(CommandLineTest, RefusesOwnersAndPermissionsInTheProgramsWords) {
    const std::string file = write(document(""));
    ASSERT_EQ(::chmod(file.c_str(), 0646), 0);
    const std::string text = run({"check", file}, ExitStatus::refused);
    EXPECT_THAT(text, StartsWith("x.plist: error: Config file at 'x.plist' has the following invalid "
                                 "owner/permissions:\n ["));
    EXPECT_THAT(text,
                HasSubstr("rw-r--rw-]\nx.plist: error: The configuration file at 'x.plist' has too much "
                          "permissions and cannot be used.\nAllowed cases:\n"));
    EXPECT_EQ(run({"check", "--no-admission", file}, ExitStatus::wouldRun), "");
}

TEST_F(CommandLineTest, RefusesWhatIsNoReadableFile) {
    EXPECT_EQ(run({"check", directory_.path("a b")}, ExitStatus::refused),
              "a b: error: Configuration file is missing. [file://a%20b]\n");
    const std::string text = run({"check", "--no-admission", directory_.path()}, ExitStatus::refused);
    EXPECT_THAT(text, HasSubstr("error: An error occurred while retrieving the configuration file ["));
    EXPECT_THAT(text, HasSubstr("error: Configuration file is missing. [file://"));
}

TEST_F(CommandLineTest, ChecksEveryFile) {
    const std::string good = directory_.write("good.plist", document(""));
    const std::string bad = directory_.write("bad.plist", "<plist>\n<dict/></plist>");
    const std::string text = run({"check", "--no-admission", bad, good, bad}, ExitStatus::refused);
    EXPECT_EQ(std::ranges::count(text, '\n'), 2);
}

TEST_F(CommandLineTest, WritesControlCharactersOut) {
    EXPECT_THAT(run({"check", directory_.path("x\x1b[2J\n.plist")}, ExitStatus::refused),
                StartsWith("x\\x1b[2J\\x0a.plist: error: "));
}

TEST_F(CommandLineTest, FailsWhenTheOutputCannotBeWritten) {
    std::ofstream out("/dev/full");
    std::ostringstream err;
    EXPECT_EQ(runCommandLine({"check", directory_.path("x")}, authority_, out, err), ExitStatus::failed);
    EXPECT_EQ(err.str(), "velmarctl: The output could not be written.\n");
}

TEST_F(CommandLineTest, ExplainsItsUse) {
    EXPECT_THAT(run({"--help"}, ExitStatus::wouldRun),
                AllOf(HasSubstr("The administrator's tool for Velmar."), HasSubstr("check")));
    EXPECT_THAT(
        run({"check", "--help"}, ExitStatus::wouldRun),
        AllOf(HasSubstr("FILE"), HasSubstr("--no-admission"), HasSubstr("--json"), HasSubstr("--strict")));
    EXPECT_THAT(run({"--version"}, ExitStatus::wouldRun),
                MatchesRegex("velmarctl [0-9.]+ \\(configuration Velmar-[0-9.]+\\)\n"));
    const std::vector<std::string> wrongUses[] = {{}, {"check"}, {"chek", "x"}, {"check", "--foo", "x"}};
    for (const auto &wrong : wrongUses) {
        EXPECT_THAT(run(wrong, ExitStatus::failed), IsEmpty());
        EXPECT_FALSE(complaints_.empty());
    }
}

} // namespace
} // namespace velmar
