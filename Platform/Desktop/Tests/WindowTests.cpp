#include <Desktop/MainMenu.h>
#include <Desktop/Window.h>
#include <Support/QtTest.h>

#include <QEventLoop>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace velmar {
namespace {

MenuItem entry(std::string title, int tag = 0, std::function<void()> action = {}) {
    return {
        .title = std::move(title), .tag = tag, .shortcut = {}, .action = std::move(action), .submenu = {}};
}

MenuItem menu(std::string title, int tag, std::vector<MenuItem> submenu) {
    return {
        .title = std::move(title), .tag = tag, .shortcut = {}, .action = {}, .submenu = std::move(submenu)};
}

class Windows : public QtTest<> {};

TEST_F(Windows, KeepTheShortcutsOfAHiddenMenuBar) {
    MainMenu mainMenu;
    Window window({}, mainMenu);
    int quits = 0;
    MenuItem quit = entry("Quit", 0, [&] { ++quits; });
    quit.shortcut = KeyShortcut{.key = 'Q', .command = true};
    mainMenu.setItems({menu("Q & A", 0, {quit}), menu("Admin", 2, {entry("Reload")})});
    EXPECT_EQ(window.findChild<QMenuBar *>(), nullptr) << "nothing before the first paint needs it";
    window.setSizes({400, 300}, {400, 300}, {800, 600});
    QEventLoop loop;
    QObject::connect(&window, &Window::firstPainted, &loop, &QEventLoop::quit);
    window.show();
    loop.exec();
    const auto *bar = window.findChild<QMenuBar *>();
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(bar->actions().size(), 2);
    EXPECT_EQ(bar->actions().first()->text(), "Q && A") << "shown with one";
    mainMenu.removeItems(2);
    EXPECT_FALSE(bar->isVisible());
    QKeyEvent f10(QEvent::KeyPress, Qt::Key_F10, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &f10);
    EXPECT_TRUE(bar->isVisible());
    ASSERT_EQ(bar->actions().size(), 1);
    bar->actions().first()->menu()->hide();
    QCoreApplication::processEvents();
    EXPECT_FALSE(bar->isVisible());
    ASSERT_EQ(window.actions().size(), 1);
    EXPECT_EQ(window.actions().first()->shortcut(), QKeySequence("Ctrl+Q"));
    window.actions().first()->trigger();
    EXPECT_EQ(quits, 1);
}

TEST_F(Windows, SurviveAnEntryThatReplacesTheMenusOfAllOfThem) {
    MainMenu mainMenu;
    const Window window({}, mainMenu);
    const Window other({.hasMenuBar = false}, mainMenu);
    auto gone = std::make_unique<Window>(Window::Style(), mainMenu);
    mainMenu.setItems({menu("App", 0, {entry("Less", 0, [&] { mainMenu.setItems({}); })})});
    EXPECT_EQ(other.actions().size(), 1);
    gone.reset();
    window.actions().first()->trigger();
    EXPECT_TRUE(window.actions().isEmpty());
    EXPECT_TRUE(other.actions().isEmpty());
}

TEST_F(Windows, AreClosedByTheUserOnlyWhereTheStyleSaysSo) {
    MainMenu mainMenu;
    const std::pair<Window::Style, bool> cases[] = {
        {{}, true}, {{.isClosable = false}, false}, {{.hasTitleBar = false}, false}};
    for (const auto &[style, closes] : cases) {
        Window window(style, mainMenu);
        window.show();
        EXPECT_EQ(window.windowHandle()->close(), closes);
        EXPECT_EQ(window.isVisible(), !closes);
    }
}

TEST_F(Windows, OpenInTheirSizeAndStayWithinTheirLimits) {
    MainMenu mainMenu;
    Window resizable({}, mainMenu);
    resizable.setSizes({800, 600}, {800, 600}, {1280, 768});
    EXPECT_EQ(resizable.maximumSize(), QSize(1280, 768));
    resizable.setSizes({1400, 900}, {1400, 900}, {1280, 768});
    EXPECT_EQ(resizable.size(), QSize(1400, 900)) << "the least counts more than the most";
    Window fixed({.isResizable = false}, mainMenu);
    fixed.setSizes({800, 600}, {800, 600}, {1280, 768});
    EXPECT_EQ(fixed.maximumSize(), QSize(800, 600));
    Window bare({.hasTitleBar = false}, mainMenu);
    bare.setSizes({800, 600}, {800, 600}, {1280, 768});
    bare.show();
    EXPECT_EQ(bare.maximumSize(), QSize(800, 600));
    EXPECT_FALSE(bare.mask().contains(QPoint(1, 1))) << "corners are round";
    EXPECT_TRUE(bare.mask().contains(QPoint(1, Window::cornerRadius + 1)));
}

} // namespace
} // namespace velmar
