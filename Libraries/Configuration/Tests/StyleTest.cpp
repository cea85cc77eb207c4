#include "Support.h"

#include <gtest/gtest.h>

using namespace velmar;
using velmar::test::outcomeOf;
using velmar::test::validFileWith;

namespace {

std::string colorFile(std::string_view value) {
    return fmt::format(
        "<key>ColorStyles</key><dict><key>C</key><dict><key>DarkMode</key>{}<key>LightMode</key>"
        "<string>#000000</string></dict></dict>",
        value);
}

TEST(ColorItem, ReadsHexadecimalSpecifications) {
    using Specification = ColorItem::Specification;
    const auto invalid = [](const char *text) {
        return fmt::format(
            "Invalid string color specification '{}' at ColorStyles.C.DarkMode. Color specification: "
            "'#NNNNNN' where N is a number between 0 and F.",
            text);
    };
    const std::vector<std::pair<const char *, Specification>> good = {
        {"#112233", {0x11, 0x22, 0x33, std::nullopt}},
        {"#11223344", {0x11, 0x22, 0x33, 0x44}},
        {"#fFaA00", {0xFF, 0xAA, 0x00, std::nullopt}},
        // Characters after the leading number are ignored.
        {"#12ZZZZ", {0x00, 0x00, 0x12, std::nullopt}},
        {"#0x12AB", {0x00, 0x12, 0xAB, std::nullopt}},
    };
    for (const auto &[text, expected] : good) {
        const auto configuration =
            Configuration::decode(validFileWith(colorFile(fmt::format("<string>{}</string>", text))));
        EXPECT_EQ(configuration->_colorStyles().models().at("C")._darkMode(), expected) << text;
    }
    for (const char *text :
         {"#GGGGGG", "112233", "#ABC", "#", "", "#1122334", "#112233445", " #112233", "#ÄÄÄ"}) {
        EXPECT_EQ(outcomeOf(validFileWith(colorFile(fmt::format("<string>{}</string>", text)))),
                  invalid(text));
    }
    EXPECT_EQ(outcomeOf(validFileWith(colorFile("<integer>112233</integer>"))), invalid(""));
    EXPECT_EQ((Specification{0x0A, 0xFF, 0, 0x7}.text()), "#AFF07");
}

TEST(Styles, FailWithTheirTexts) {
    const auto color = [](std::string_view keys) {
        return fmt::format("<key>ColorStyles</key><dict><key>C</key><dict>{}</dict></dict>", keys);
    };
    const std::vector<std::pair<std::string, std::string>> rows = {
        {color("<key>Style</key><string>C</string>"),
         "Error at 'ColorStyles.C.Style'. Variable 'C' ({Style = C}) used within its own initial value"},
        {color("<key>Style</key><string>Nowhere</string>"),
         "Error at 'ColorStyles.C.Style'. C has an undefined parent Nowhere"},
        {"<key>ColorStyles</key><dict><key>A</key><dict><key>Style</key><string>B</string></dict>"
         "<key>B</key><dict><key>Style</key><string>A</string></dict></dict>",
         "Error at 'ColorStyles.B.Style'. Circular reference for ColorItems involving B"},
        {"<key>Navigation</key><dict><key>NextButtonTextColor</key><string>Nowhere</string></dict>",
         "Error at 'Navigation.NextButtonTextColor'. Undefined has an undefined parent Nowhere"},
        {"<key>FontStyles</key><dict><key>F</key><dict><key>Color</key><string>Nowhere</string></dict></"
         "dict>",
         "Error at 'FontStyles.F.Color'. Undefined has an undefined parent Nowhere"},
    };
    for (const auto &[content, expected] : rows) {
        EXPECT_EQ(outcomeOf(validFileWith(content)), expected) << content;
    }
}

// Grandparent, parent and child, not in the order of inheritance.
constexpr const char *family = R"(
    <key>ColorStyles</key><dict>
        <key>Child</key><dict><key>Style</key><string>Parent</string><key>AlphaLight</key><real>0.25</real></dict>
        <key>Grandparent</key><dict><key>DarkMode</key><string>#010101</string><key>LightMode</key><string>#020202</string>
            <key>AlphaDark</key><real>0.5</real></dict>
        <key>Parent</key><dict><key>Style</key><string>Grandparent</string><key>DarkMode</key><string>#030303</string></dict>
    </dict>
    <key>FontStyles</key><dict>
        <key>Body</key><dict><key>Style</key><string>Base</string><key>Size</key><integer>14</integer></dict>
        <key>Base</key><dict><key>Size</key><integer>10</integer><key>Color</key><string>Child</string>
            <key>SystemFontWeight</key><string>Bold</string></dict>
    </dict>
    <key>SideContainer</key><dict><key>Container</key><dict><key>Components</key><array>
        <dict><key>Type</key><string>Text</string><key>Text</key><string/><key>TextFontConfiguration</key><string>Body</string></dict>
        <dict><key>Type</key><string>Text</string><key>Text</key><string/><key>TextFontConfiguration</key>
            <dict><key>Style</key><string>Body</string><key>Size</key><integer>12</integer></dict></dict>
        <dict><key>Type</key><string>Text</string><key>Text</key><string/><key>TextFontConfiguration</key>
            <dict><key>Size</key><integer>9</integer></dict></dict>
    </array></dict></dict>)";

TEST(Styles, InheritThroughAllLevels) {
    const auto configuration = Configuration::decode(validFileWith(family));
    const ColorItem &child = configuration->_colorStyles().models().at("Child");
    EXPECT_EQ(child._darkMode().red, 3);
    EXPECT_EQ(child._lightMode().red, 2);
    EXPECT_EQ(child._alphaDark(), 0.5);
    EXPECT_EQ(child._alphaLight(), 0.25);
    EXPECT_EQ(child._parentModelName(), "Parent");

    const auto fontOf = [&](std::size_t index) -> FontItem {
        const auto &component = configuration->_sideContainer()->_container()._components()[index];
        return *std::get<ComponentItem::Text>(component.value)._font();
    };
    EXPECT_EQ(fontOf(0)._size(), 14);
    EXPECT_EQ(fontOf(0)._systemFontWeight(), FontItem::SystemFontWeight::bold);
    EXPECT_EQ(fontOf(0)._color()->_darkMode().red, 3) << "a colour that is inherited is resolved as well";
    EXPECT_EQ(fontOf(1)._size(), 12);
    EXPECT_EQ(fontOf(1)._color()->_alphaLight(), 0.25);
    EXPECT_EQ(fontOf(2)._size(), 9);
    EXPECT_FALSE(fontOf(2)._color());
}

TEST(Styles, TakeAChainOfAnyLength) {
    std::string models = "<key>M0</key><dict><key>DarkMode</key><string>#070707</string><key>LightMode</key>"
                         "<string>#080808</string></dict>";
    constexpr int length = 50'000;
    for (int index = 1; index <= length; ++index) {
        models +=
            fmt::format("<key>M{}</key><dict><key>Style</key><string>M{}</string></dict>", index, index - 1);
    }
    const auto configuration =
        Configuration::decode(validFileWith(fmt::format("<key>ColorStyles</key><dict>{}</dict>", models)));
    EXPECT_EQ(configuration->_colorStyles().models().at(fmt::format("M{}", length))._darkMode().red, 7);
}

} // namespace
