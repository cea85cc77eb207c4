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

TEST(Color, IsThatOfTheAppearance) {
    ColorItem color = item({255, 0, 51, {}}, {0, 102, 255, {}});
    color._alphaDark.set(0.5);
    const RecordedLog log;
    EXPECT_EQ(Color::of(color, true), (Color{1, 0, 0.2, 0.5}));
    EXPECT_EQ(Color::of(color, false), (Color{0, 0.4, 1, 1}));
    EXPECT_TRUE(log.lines().empty());
}

TEST(Color, TakesTheAlphaOfItsSpecificationFirstAndWarnsEachTime) {
    ColorItem color = item({0x11, 0x22, 0x33, 0x44}, {0, 0, 0, {}});
    color._alphaDark.set(0.5);
    const RecordedLog log;
    EXPECT_DOUBLE_EQ(Color::of(color, true).alpha, 0x44 / 255.0);
    EXPECT_DOUBLE_EQ(Color::of(color, true).alpha, 0x44 / 255.0);
    const std::string line =
        "warning: #11223344. Specifying the alpha inside the color hexa String is deprecated and "
        "will be removed in a future release";
    EXPECT_EQ(log.lines(), (std::vector<std::string>{line, line}));
}

} // namespace
} // namespace velmar
