#include "Support.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace velmar;
using velmar::test::fileWith;
using velmar::test::outcomeOf;
using velmar::test::validFileWith;

namespace {

constexpr const char *slidesMissing =
    "Error at 'Slides'. The 'Slides' configuration array should be specified and cannot be empty when "
    "'Window.OnScreen' is set to 'Simple', 'BlurredBackground', or 'Fullscreen'.";

TEST(Configuration, IsAdmittedOrRefusedAsAWhole) {
    const std::vector<std::pair<const char *, std::string>> rows = {
        {"", slidesMissing},
        {"<key>Slides</key><array/>", slidesMissing},
        {"<key>Window</key><dict><key>OnScreen</key><string>FullScreen</string></dict>", slidesMissing},
        {"<key>Window</key><dict><key>OnScreen</key><string>MenuBar</string></dict>",
         "Error at 'MenuBarSlide'. The 'MenuBarSlide' should be specified when 'Window.OnScreen' is set to "
         "'MenuBar'."},
        {"<key>Window</key><dict><key>OnScreen</key><string>MenuBar</string></dict>"
         "<key>MenuBarSlide</key><dict><key>Containers</key><array/></dict>",
         "decoded"},
        {"<key>Slides</key><array><dict/></array>", "Missing required key 'Containers' at 'Slides.0'"},
        {"<key>Slides</key><array><dict><key>Containers</key><array><dict/></array></dict></array>",
         "Missing required key 'Components' at 'Slides.0.Containers.0'"},
        {"<key>Slides</key><array><dict><key>Containers</key><array><dict><key>Components</key><array><dict/"
         "></array>"
         "</dict></array></dict></array>",
         "Missing required key 'Type' at 'Slides.0.Containers.0.Components.0'"},
        {"<key>Slides</key><array><dict><key>Containers</key><array><dict><key>Components</key><array>"
         "<string>abc</string></array></dict></array></dict></array>",
         "Decoding error at 'Slides.0.Containers.0.Components.0'. Missing required key 'Components' or wrong "
         "value. "
         "Expected type: dictionary (ComponentItem). The value is 'abc'."},
        {"<key>Slides</key><array><dict><key>Containers</key><array><dict><key>Components</key><array>"
         "<dict><key>Type</key><string>text</string></dict></array></dict></array></dict></array>",
         "Decoding error at 'Slides.0.Containers.0.Components.0.Type'. The value is 'text'.\nExpected type: "
         "string | "
         "Possible values: 'Text', 'Image', 'Button', 'Web', 'Spacer', 'AppMonitor', 'PDF', 'Video', "
         "'Input'."},
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(fileWith(content)), expected) << content;
    }
    EXPECT_EQ(outcomeOf(PropertyList("text")), "The root of the configuration is 'text', not a dictionary.");
}

TEST(Configuration, ChecksASectionOnlyWhereItIsGiven) {
    const std::vector<std::pair<const char *, std::string>> rows = {
        {"", "decoded"},
        {"<key>Window</key><dict/>", "Missing required key 'OnScreen' at 'Window'"},
        {"<key>Admin</key><dict><key>IsMenuBarSemiTransient</key><true/></dict>",
         "Missing required key 'IsAdminModeEnabled' at 'Admin'"},
        {"<key>Input</key><dict/>", "Missing required key 'FileFormat' at 'Input'"},
        {"<key>SideContainer</key><dict/>", "Missing required key 'Container' at 'SideContainer'"},
        {"<key>Navigation</key><dict/><key>AppTermination</key><dict/><key>Monitoring</key><dict/>"
         "<key>APIRequests</key><dict/><key>ColorStyles</key><dict/>",
         "decoded"},
        {"<key>Window</key><dict><key>OnScreen</key><string>Simple</string><key>Position</key><dict>"
         "<key>Padding</key><real>4</real></dict></dict>",
         "Missing required key 'Horizontal' at 'Window.Position'"},
        {"<key>Window</key><dict><key>OnScreen</key><string>Simple</string><key>MinimumSize</key><dict>"
         "<key>Width</key><real>4</real></dict></dict>",
         "Missing required key 'Height' at 'Window.MinimumSize'"},
        {"<key>APIRequests</key><dict><key>DefaultMDMApi</key><string>AirWatch</string></dict>",
         "Decoding error at 'APIRequests.DefaultMDMApi'. The value is 'AirWatch'.\nExpected type: string | "
         "Possible "
         "values: 'Jamf', 'JamfPro', 'Airwatch'."},
        {"<key>Zebra</key><true/>", "decoded"},
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(validFileWith(content)), expected) << content;
    }
}

TEST(Configuration, HasTheDefaultsOfItsSections) {
    const auto configuration = Configuration::decode(validFileWith(""));
    EXPECT_FALSE(configuration->_admin()._isAdminModeOn());
    EXPECT_EQ(configuration->_appTermination()._forceQuitShortcutKey(), "F");
    EXPECT_TRUE(configuration->_appTermination()._relaunchAtLogin());
    const WindowSection &window = configuration->_window();
    EXPECT_EQ(window._minimumSize()._width(), 800);
    EXPECT_EQ(window._maximumSize()._height(), 768);
    EXPECT_EQ(window._position()._padding(), 20);
    EXPECT_EQ(window._onScreen(), WindowSection::OnScreen::simple);
    EXPECT_FALSE(configuration->_sideContainer());
}

TEST(Configuration, WritesWhatItHasRead) {
    const auto file = validFileWith(R"(
        <key>General</key><dict><key>Variables</key><dict><key>NAME</key><string>${USER_NAME}</string></dict></dict>
        <key>ColorStyles</key><dict>
            <key>Accent</key><dict><key>DarkMode</key><string>#AABBCC</string><key>LightMode</key><string>#112233FF</string></dict>
            <key>Pale</key><dict><key>Style</key><string>Accent</string><key>AlphaLight</key><real>0.5</real></dict></dict>
        <key>FontStyles</key><dict><key>Title</key><dict><key>Size</key><real>28</real><key>Color</key><string>Pale</string></dict></dict>
        <key>Navigation</key><dict><key>NextButtonTextColor</key><dict><key>Style</key><string>Pale</string></dict></dict>
        <key>SideContainer</key><dict><key>Container</key><dict><key>Components</key><array>
            <dict><key>Type</key><string>Spacer</string><key>Height</key><real>2.5</real></dict>
            <dict><key>Type</key><string>Text</string><key>Text</key><string>Hello ${NAME}</string>
                  <key>TextFontConfiguration</key><string>Title</string>
                  <key>Border</key><dict><key>Edge</key><string>Bottom</string></dict></dict></array></dict></dict>)");
    const auto configuration = Configuration::decode(file);
    EXPECT_EQ(configuration->encode(), file);
    const auto again = Configuration::decode(configuration->encode());
    const auto &text =
        std::get<ComponentItem::Text>(again->_sideContainer()->_container()._components()[1].value);
    EXPECT_EQ(text._font()->_color()->_lightMode(), (ColorItem::Specification{0x11, 0x22, 0x33, 0xFF}));
    EXPECT_EQ(text._font()->_color()->_alphaLight(), 0.5);
    EXPECT_EQ(text.common._border()->_edge(), BorderItem::Edge::bottom);
}

TEST(Examples, AreConfigurations) {
    std::size_t count = 0;
    for (const auto &entry : std::filesystem::directory_iterator(VELMAR_SOURCE_DIR "/Examples")) {
        std::ifstream file(entry.path());
        const std::string content{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(outcomeOf(PropertyList::read(content).value), "decoded") << entry.path();
        ++count;
    }
    EXPECT_GT(count, 0U);
}

// The widths of the containers of one slide: L and l give "IsLarge" true and false, numbers "WidthRatio", -
// neither.
TEST(SlideItem, SharesItsWidth) {
    const std::string error = "Error at 'Slides.0.Containers'. ";
    const std::string atOne = error +
                              "Widths ratios sum for containers is equal to 1 but other containers have no "
                              "width specified.\nPlease specify a 'WidthRatio' for the remaining containers "
                              "or make the sum lesser than 1.";
    const std::string mixed =
        error + "It's not possible to mix 'IsLarge' and 'WidthRatio' options for containers in a slide";
    const std::string onlyTwo = error + "'IsLarge' containers option only be used with 2 containers";
    const std::vector<std::pair<std::vector<const char *>, std::string>> rows = {
        {{}, "equal"},
        {{"-", "-", "-"}, "equal"},
        {{"L", "-"}, "0.6666666666666666 0.3333333333333333"},
        {{"-", "L"}, "0.3333333333333333 0.6666666666666666"},
        {{"l", "l"}, "0.3333333333333333 0.6666666666666666"},
        {{"L", "L"}, error + "Only one container can have the 'IsLarge' option."},
        {{"l", "-", "-"}, onlyTwo},
        {{"L"}, onlyTwo},
        {{"L", "0.5"}, mixed},
        {{"0.5", "-"}, "0.5 0.5"},
        {{"0.25", "0.75"}, "0.25 0.75"},
        {{"0.5", "-", "-"}, "0.5 0.25 0.25"},
        {{"0.3", "0.3"}, error + "The sum of widths ratios should be equal to 1 (currently equal to 0.6)"},
        {{"0.7", "0.2", "0.1"},
         error + "The sum of widths ratios should be equal to 1 (currently equal to 0.9999999999999999)"},
        {{"0.1", "0.2", "0.7"}, "0.1 0.2 0.7"},
        {{"0.6", "0.6"},
         error +
             "Widths ratios sum for containers should be lesser than or equal to 1 (currently equal to 1.2)"},
        {{"1", "-"}, atOne},
        {{"1.5"}, "Wrong value 1.5 in allowed range 0.0...1.0 at Slides.0.Containers.0.WidthRatio"},
    };
    for (const auto &[containers, expected] : rows) {
        std::string content;
        for (const std::string container : containers) {
            const std::string width = container == "-"   ? ""
                                      : container == "L" ? "<key>IsLarge</key><true/>"
                                      : container == "l"
                                          ? "<key>IsLarge</key><false/>"
                                          : fmt::format("<key>WidthRatio</key><real>{}</real>", container);
            content += fmt::format("<dict><key>Components</key><array/>{}</dict>", width);
        }
        const auto file = fileWith(fmt::format(
            "<key>Slides</key><array><dict><key>Containers</key><array>{}</array></dict></array>", content));
        std::string outcome = outcomeOf(file);
        if (outcome == "decoded") {
            const auto composition =
                Configuration::decode(file)->_slides().front().containersComposition().value;
            const auto *ratio = std::get_if<SlideItem::ContainersComposition::Ratio>(&composition);
            outcome = ratio == nullptr ? "equal" : "";
            for (std::size_t index = 0; ratio != nullptr && index < ratio->shares.size(); ++index) {
                outcome += (outcome.empty() ? "" : " ") + textOf(ratio->shares[index].ratio);
            }
        }
        EXPECT_EQ(outcome, expected) << content;
    }
    EXPECT_EQ(outcomeOf(fileWith(
                  "<key>Slides</key><array><dict><key>Containers</key><array><dict><key>Components</key>"
                  "<array/><key>IsLarge</key><true/><key>WidthRatio</key><real>1</real></dict></array>"
                  "</dict></array>")),
              "Key validation error. The key IsLarge excludes a key specified in [\"WidthRatio\"].");
}

} // namespace
