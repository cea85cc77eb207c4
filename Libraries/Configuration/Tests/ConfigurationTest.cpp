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
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(fileWith(content)), expected) << content;
    }
    EXPECT_EQ(outcomeOf(PropertyList("text")), "The root of the configuration is 'text', not a dictionary.");
}

TEST(Configuration, HandsOutTheAlternativesOfComponentsAndActions) {
    const auto configuration = Configuration::decode(
        validFileWith("<key>SideContainer</key><dict><key>Container</key><dict><key>Components</key><array>"
                      "<dict><key>Type</key><string>Spacer</string></dict>"
                      "<dict><key>Type</key><string>Input</string><key>InputType</key><string>Text</string>"
                      "<key>Variable</key><string>TEAM</string></dict></array></dict></dict>"
                      "<key>ActionSets</key><array><dict><key>Type</key><string>Parallel</"
                      "string><key>Triggers</key><array/>"
                      "<key>Actions</key><array><dict><key>Type</key><string>Log</string><key>Message</"
                      "key><string>m</string>"
                      "<key>Condition</key><string>TEAM == 1</string></dict></array></dict></array>"));
    const auto &components = configuration->_sideContainer()->_container()._components();
    EXPECT_EQ(typeIdentifierOf(components[0]), ComponentItems::TypeIdentifier::spacer);
    EXPECT_EQ(typeIdentifierOf(components[1]), ComponentItems::TypeIdentifier::input);
    EXPECT_NE(itemOf<ComponentItems::Spacer>(components[0]), nullptr);
    EXPECT_EQ(itemOf<ComponentItems::Spacer>(components[1]), nullptr);
    const ActionItem &action = configuration->_actionSets().front().set._actions().front();
    EXPECT_EQ(typeIdentifierOf(action), ActionItems::TypeIdentifier::log);
    EXPECT_EQ(itemOf<ActionItems::Log>(action)->_message(), "m");
    EXPECT_EQ(itemOf<ActionItems::SaveInputs>(action), nullptr);
    EXPECT_EQ(conditionOf(action)->source(), "TEAM == 1");
}

TEST(Configuration, TakesEmptySectionsThatRequireNothingAndKeysThatItDoesNotKnow) {
    EXPECT_EQ(outcomeOf(validFileWith("<key>Navigation</key><dict/><key>AppTermination</key><dict/>"
                                      "<key>Monitoring</key><dict/><key>APIRequests</key><dict/>"
                                      "<key>ColorStyles</key><dict/><key>Zebra</key><true/>")),
              "decoded");
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

TEST(Examples, AreConfigurations) {
    std::size_t count = 0;
    for (const auto &entry : std::filesystem::directory_iterator(VELMAR_SOURCE_DIR "/Examples")) {
        std::ifstream file(entry.path());
        const std::string content{std::istreambuf_iterator<char>(file), {}};
        EXPECT_EQ(outcomeOf(PropertyList::read(content)), "decoded") << entry.path();
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
        {{"L", "-"}, "0.6666666666666666 0.3333333333333333"},
        {{"-", "L"}, "0.3333333333333333 0.6666666666666666"},
        {{"l", "l"}, "0.3333333333333333 0.6666666666666666"},
        {{"L", "L"}, error + "Only one container can have the 'IsLarge' option."},
        {{"l", "-", "-"}, onlyTwo},
        {{"L"}, onlyTwo},
        {{"L", "0.5"}, mixed},
        {{"0.5", "-"}, "0.5 0.5"},
        {{"0.5", "-", "-"}, "0.5 0.25 0.25"},
        {{"0.3", "0.3"}, error + "The sum of widths ratios should be equal to 1 (currently equal to 0.6)"},
        {{"0.7", "0.2", "0.1"},
         error + "The sum of widths ratios should be equal to 1 (currently equal to 0.9999999999999999)"},
        {{"0.6", "0.6"},
         error +
             "Widths ratios sum for containers should be lesser than or equal to 1 (currently equal to 1.2)"},
        {{"1", "-"}, atOne},
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
