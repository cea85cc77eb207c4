#include "CommandLineTest.h"

#include <Foundation/UserAccount.h>

#include <filesystem>

#include <sys/stat.h>
#include <unistd.h>

namespace velmar {
namespace {

std::string entry(std::string_view key, std::string_view text) {
    return fmt::format("<key>{}</key><string>{}</string>\n", key, text);
}
std::string list(std::string_view key, std::string_view elements) {
    return fmt::format("<key>{}</key><array>{}</array>", key, elements);
}
std::string item(std::string_view keys) {
    return fmt::format("<dict>{}</dict>", keys);
}
std::string set(std::string_view actions, std::string_view keys = {}) {
    return item(entry("Type", "Parallel") + list("Actions", actions) + std::string(keys));
}
std::string button(std::string_view actions) {
    return item(entry("Type", "Button") + entry("Style", "Simple") + "<key>OnClick</key>" + set(actions));
}
std::string slide(std::string_view components, std::string_view keys = {}) {
    return item(list("Containers", item(list("Components", components))) + std::string(keys));
}
std::string window(std::string_view slide) {
    return item(entry("Type", "OpenWindow") + "<key>Slide</key>" + std::string(slide) +
                "<key>Size</key><dict><key>Height</key><real>1</real><key>Width</key><real>1</real></dict>");
}

class PartWarningTest : public CommandLineTest {
protected:
    PartWarningTest() {
        // Makes the user of the test run an administrator.
        const auto account = UserAccount::numbered(geteuid());
        authority_.users[account ? account->name : ""].groups = {"admin"};
    }

    // Returns the warnings of a file with these slides and further keys. The first slide begins on line 2.
    std::string warnings(const std::string &slides, const std::string &keys = {}) {
        return check("<plist version=\"1.0\"><dict>\n" + list("Slides", slides) + "\n" + keys +
                         "</dict></plist>",
                     ExitStatus::succeeded);
    }
};

// All warnings come from one walk over the file, so the keys are tested at every place where items may occur.
TEST_F(PartWarningTest, NamesEveryKeyWithoutItsFile) {
    const std::string script = item(entry("Type", "ExecuteScript") + entry("ScriptPath", "/no/1"));
    const std::string alert =
        item(entry("Type", "DisplayAlert") + entry("Title", "T") + entry("Message", "M") +
             entry("Style", "Warning") + entry("IconPath", "file:///no/a%20b"));
    const std::string pdf = item(entry("Type", "PDF") + entry("URL", "/no/6"));
    const std::string pictures =
        item(entry("Type", "Image") + entry("LightModeURL", "/no/3") + entry("DarkModeURL", "/no/4")) +
        item(entry("Type", "Image") + entry("URL", "/no/5"));
    const std::string text = warnings(
        slide(button(script + window(slide(button(alert))))),
        "<key>AppTermination</key>" +
            item(entry("IncompleteInstallationScriptPath", "/no/7") +
                 entry("CompleteInstallationScriptPath", "/no/8")) +
            "<key>Window</key>" + item(entry("OnScreen", "Simple") + entry("MenuBarIconPath", "/no/9")) +
            "<key>MenuBarSlide</key>" + slide(pictures) + "<key>SideContainer</key>" +
            item("<key>Container</key>" + item(list("Components", pdf))) + "<key>Monitoring</key>" +
            item(list("Monitors", item(entry("Type", "Application") + entry("Name", "A") +
                                       entry("Installer", "Jamf") + entry("IconURL", "/no/10")))) +
            list("ActionSets", set(script, list("Triggers", "<string>Launch</string>"))));
    const std::string action = "Slides.0.Containers.0.Components.0.OnClick.Actions.";
    const struct {
        int line;
        std::string path;
        const char *file;
    } expected[] = {
        {6, action + "0.ScriptPath", "/no/1"},
        {15, action + "1.Slide.Containers.0.Components.0.OnClick.Actions.0.IconPath", "/no/a b"},
        {17, "AppTermination.IncompleteInstallationScriptPath", "/no/7"},
        {18, "AppTermination.CompleteInstallationScriptPath", "/no/8"},
        {20, "Window.MenuBarIconPath", "/no/9"},
        {22, "MenuBarSlide.Containers.0.Components.0.LightModeURL", "/no/3"},
        {23, "MenuBarSlide.Containers.0.Components.0.DarkModeURL", "/no/4"},
        {25, "MenuBarSlide.Containers.0.Components.1.URL", "/no/5"},
        {27, "SideContainer.Container.Components.0.URL", "/no/6"},
        {31, "Monitoring.Monitors.0.IconURL", "/no/10"},
        {34, "ActionSets.0.Actions.0.ScriptPath", "/no/1"},
    };
    std::string lines;
    for (const auto &[line, path, file] : expected) {
        lines += fmt::format("x.plist:{}: warning: {}: There is no file at '{}'\n", line, path, file);
    }
    EXPECT_EQ(text, lines);
}

TEST_F(PartWarningTest, DoubtsFilesThatOthersMayWrite) {
    const auto make = [&](const std::string &name, mode_t mode) {
        EXPECT_EQ(::chmod(directory_.write(name, "").c_str(), mode), 0);
    };
    make("good", 0755);
    make("open", 0666);
    make("everyones/file", 0644);
    make("sticky/file", 0644);
    make("sticky/open", 0606);
    EXPECT_EQ(::chmod(directory_.path("everyones").c_str(), 0777), 0);
    EXPECT_EQ(::chmod(directory_.path("sticky").c_str(), 01777), 0);
    std::filesystem::create_symlink("./sticky/../everyones/file", directory_.path("link"));
    std::filesystem::create_symlink("loop", directory_.path("loop"));
    const std::string at = directory_.path() + '/';
    const auto open = [](std::string_view path, std::string_view place, std::string_view reason) {
        return fmt::format("An ordinary user may change what stands at '{}': '{}' {}", path, place, reason);
    };
    const std::string everyone = "may be written by everyone";
    struct Case {
        std::string path, fault; // No fault if the path is good.
    };
    std::vector<Case> cases{
        {at + "good", ""},
        {at + "sticky/..//./good", ""},
        {at + "sticky/file", ""},
        {"${HOME}/x", ""},
        {"https://example.com/x", ""},
        {"a/b", "'a/b' is not an absolute path: where it leads depends on where Velmar is started"},
        {at + "good/x", "There is no file at 'good/x'"},
        {at + "loop", "There is no file at 'loop'"},
        {at + "sticky", "What stands at 'sticky' is not a file"},
        {at + "open", open("open", "open", everyone)},
        {at + "sticky/open", open("sticky/open", "sticky/open", everyone)},
        {at + "everyones/file", open("everyones/file", "everyones", everyone)},
        {at + "link", open("link", "everyones", everyone)},
    };
    if (geteuid() == 0) {
        make("theirs", 0644);
        make("group", 0664);
        EXPECT_EQ(::chown((at + "theirs").c_str(), 4242424, 0), 0);
        EXPECT_EQ(::chown((at + "group").c_str(), 0, 4242424), 0);
        cases.push_back({at + "theirs", open("theirs", "theirs", "belongs to '4242424'")});
        cases.push_back({at + "group", open("group", "group", "may be written by the group '4242424'")});
    }
    const std::string general = "<key>General</key>" + item("<key>Variables</key>" + item(entry("HOME", "")));
    for (const auto &[path, fault] : cases) {
        EXPECT_EQ(
            warnings(
                slide(item(entry("Type", "Image") + entry("URL", path) + entry("Condition", "HOME == \"\""))),
                general),
            fault.empty() ? ""
                          : "x.plist:3: warning: Slides.0.Containers.0.Components.0.URL: " + fault + "\n")
            << path;
    }
}

// The variable AB is used only by the trigger.
TEST_F(PartWarningTest, NamesPartsThatDoNothing) {
    const auto trigger = [](std::string_view name) {
        return item(entry("Type", "Button") + entry("Style", "Info") + entry("Trigger", name));
    };
    const std::string notification =
        item(entry("Type", "DisplayNotification") + entry("Title", "T") +
             list("Actions", item(entry("Title", "T") + entry("Trigger", "Known")) +
                                 item(entry("Title", "T") + entry("Trigger", "known"))));
    const auto container = [](std::string_view ratio) {
        return item(list("Components", "") + fmt::format("<key>WidthRatio</key><real>{}</real>", ratio));
    };
    const auto app = [](std::string_view installer, const std::string &keys = {}) {
        return item(entry("Type", "Application") + entry("Name", "My App") + entry("Installer", installer) +
                    keys);
    };
    const auto request = [](std::string_view api) {
        return item(entry("Type", "SendRequest") + "<key>Request</key>" +
                    item(entry("MDMApi", api) + "<key>Body</key>" + item(entry("a", "1") + entry("b", "2"))));
    };
    const std::string triggers =
        "<string>Custom(Known)</string><string>Update(AB)</string><string>Update(USER_NAME)</string>"
        "<string>Update(MY_APP_INSTALLATION_STATE)</string><string>Update(CD)</string>";
    const std::string text =
        warnings(slide(trigger("Known") + trigger("${USER_NAME}") + trigger("Other")) +
                     item(list("Containers", container("0") + container("1"))),
                 "<key>General</key>" + item("<key>Variables</key>" + item(entry("AB", "1"))) +
                     list("ActionSets", set(notification + request("Airwatch") + request("Jamf"),
                                            list("Triggers", triggers))) +
                     "<key>Monitoring</key>" +
                     item(list("Monitors", app("Jamf") + app("Managed") +
                                               app("System", entry("Identifier", "a.b")) + app("System"))));
    const std::string head = "x.plist:[0-9]+: warning: ";
    EXPECT_THAT(
        text,
        testing::MatchesRegex(
            head + "Slides.0.Containers.0.Components.2.Trigger: No set of .* trigger 'Custom\\(Other\\)'\n" +
            head + "Slides.1.Containers.0.WidthRatio: The container has no width, .*\n" + head +
            "ActionSets.0.Actions.0.Actions.1.Trigger: No set of .* trigger 'Custom\\(known\\)'\n" + head +
            "ActionSets.0.Actions.2.Request: Invalid XML body for request at "
            "'ActionSets.0.Actions.2.Request.Body'. The server 'Jamf' .*\n" +
            head + "ActionSets.0.Triggers.4: Nothing defines the variable 'CD', .*\n" + head +
            "Monitoring.Monitors.3: Without 'Identifier' .*\n"));
}

TEST_F(PartWarningTest, FollowsTheWaysBetweenSlides) {
    const std::string previous = "<key>HidePreviousButton</key><true/>";
    const std::string next = "<key>HideNextButton</key><true/>";
    const auto action = [](std::string_view type, std::string_view keys = {}) {
        return button(item(entry("Type", type) + std::string(keys)));
    };
    const std::string toFirst = action("NavigateToSlide", "<key>Index</key><integer>0</integer>");
    const std::string toThird = action("NavigateToSlide", "<key>Index</key><integer>2</integer>");
    const std::string offset = action("NavigateToSlide", "<key>Offset</key><integer>-1</integer>");
    const std::string bar = "<key>Navigation</key><dict><key>IsHidden</key><true/></dict>";
    const std::string menu =
        "<key>Window</key>" + item(entry("OnScreen", "MenuBar")) + "<key>MenuBarSlide</key>" + slide("");
    const struct {
        std::vector<std::string> slides;
        std::string keys, expected; // The reported directions and slides.
    } cases[] = {
        {{slide("")}, bar, ""},
        {{slide(""), slide(""), slide("", next)}, "", ""},
        {{slide("", next), slide(""), slide("")}, "", "away from slide 0;to the slides 1 to 2;"},
        {{slide("", next), slide(""), slide(toFirst)}, "", "away from slide 0;to the slides 1 to 2;"},
        {{slide(toThird, next), slide(""), slide("")}, "", ""},
        {{slide(toThird, next), slide("", next), slide("", previous)}, "", "to slide 1;"},
        {{slide(""), slide("", previous + next), slide("")}, "", "away from slide 1;to slide 2;"},
        {{slide(""), slide("", next), slide("")}, "", "to slide 2;"},
        {{slide(action("TerminateApp"), next), slide("")}, "", "to slide 1;"},
        {{slide("", next), slide(offset)}, "", ""},
        {{slide(""), slide("")}, bar, "away from slide 0;to slide 1;"},
        {{slide(""), slide("")}, bar + menu, ""},
    };
    for (const auto &[slides, keys, expected] : cases) {
        std::string found;
        std::istringstream lines(warnings(fmt::format("{}", fmt::join(slides, "")), keys));
        const std::string_view head = ": Nothing leads ";
        for (std::string line; std::getline(lines, line);) {
            const std::size_t begin = line.find(head) + head.size();
            found += line.substr(begin, line.find(':', begin) - begin) + ';';
        }
        EXPECT_EQ(found, expected);
    }
}

} // namespace
} // namespace velmar
