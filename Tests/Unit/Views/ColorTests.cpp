#include <Configuration/ColorItem.h>
#include <Models/Appearance/Color.h>

#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmar {
namespace {

ColorItem item(ColorItem::Specification dark, ColorItem::Specification light) {
    ColorItem color;
    color._darkMode.set(dark);
    color._lightMode.set(light);
    return color;
}

TEST(Color, IsThatOfTheAppearanceAndWarnsEachTimeOfAnAlphaInItsSpecification) {
    ColorItem color = item({255, 0, 51, {}}, {0x11, 0x22, 0x33, 0x44});
    color._alphaDark.set(0.5);
    color._alphaLight.set(0.5);
    const RecordedLog log;
    EXPECT_EQ(Color::of(color, true), (Color{1, 0, 0.2, 0.5}));
    EXPECT_TRUE(log.lines().empty());
    EXPECT_DOUBLE_EQ(Color::of(color, false).alpha, 0x44 / 255.0);
    EXPECT_DOUBLE_EQ(Color::of(color, false).alpha, 0x44 / 255.0);
    ASSERT_EQ(log.lines().size(), 2U);
    EXPECT_TRUE(log.lines().back().starts_with("warning: #11223344. Specifying the alpha inside"));
}

} // namespace
} // namespace velmar
