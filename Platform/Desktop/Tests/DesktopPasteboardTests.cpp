#include <Desktop/DesktopPasteboard.h>
#include <Support/QtTest.h>

#include <QClipboard>

namespace velmar {
namespace {

using DesktopPasteboardTest = QtTest<>;

TEST_F(DesktopPasteboardTest, TakesTextsInUtf8Alone) {
    DesktopPasteboard pasteboard;
    for (const std::string &text : {std::string("plain"), std::string("größer 🌍\nline"), std::string()}) {
        EXPECT_TRUE(pasteboard.setString(text));
        EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(), text);
    }
    EXPECT_TRUE(pasteboard.setString("before"));
    for (const char *text : {"\xff", "cut \xf0\x9f\x8c", "\xc0\xaf"}) {
        EXPECT_FALSE(pasteboard.setString(text));
    }
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

} // namespace
} // namespace velmar
