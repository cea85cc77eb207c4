#include "../Managers/AppManagerFixture.h"
#include "ViewTest.h"

#include <Constants/NavigationNotifications.h>
#include <Views/Content/ContentView/ContentViewController.h>
#include <Views/Navigation/NavigationButton.h>
#include <Views/Navigation/NavigationViewController.h>
#include <Views/VelmarViewController.h>

#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include <string>

namespace velmar {
namespace {

class QuitAttempts final : public AppTerminationManagerProtocol {
public:
    void tryToQuitApplication() override { ++count; }
    int count = 0;
};

/// The whole of the views, of a configuration whose slides are one that scrolls and two that don't.
class VelmarView : public ViewTest<AppManagerFixture> {
protected:
    VelmarView() {
        std::string lines;
        for (int index = 0; index < 60; ++index) {
            lines += text(fmt::format("Line {}", index));
        }
        writeFile(
            fmt::format("<plist version=\"1.0\"><dict><key>Window</key><dict><key>OnScreen</key>"
                        "<string>Simple</string></dict><key>Slides</key><array>{}{}{}</array></dict></plist>",
                        slide(lines), slide(text("Second")), slide(text("Third"))));
        shared_ = std::make_unique<Shared<AppManager>::Scope>(makeAppManager());
        view = std::make_unique<VelmarViewController>(
            VelmarViewController::Surroundings{queue, quits, appearance(), [](bool) {}, center}, &window);
        (new QVBoxLayout(&window))->addWidget(view.get());
        content = view->findChild<ContentViewController *>();
        window.resize(600, 400);
        window.show();
        window.activateWindow();
        settle();
    }

    static std::string text(const std::string &content) {
        return fmt::format(
            "<dict><key>Type</key><string>Text</string><key>Text</key><string>{}</string></dict>", content);
    }
    static std::string slide(const std::string &components) {
        return fmt::format("<dict><key>Containers</key><array><dict><key>Components</key><array>{}</array>"
                           "</dict></array></dict>",
                           components);
    }

    void press(int key, bool repeats = false) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeats);
        QCoreApplication::sendEvent(view.get(), &event);
        settle();
    }

    NotificationCenter center;
    QuitAttempts quits;
    QWidget window;
    std::unique_ptr<VelmarViewController> view;
    ContentViewController *content = nullptr;

private:
    std::unique_ptr<Shared<AppManager>::Scope> shared_;
};

TEST_F(VelmarView, TakesTheKeysThatScrollAndLeavesTheOthersAlone) {
    const QScrollBar &bar = *content->findChild<QScrollArea *>()->verticalScrollBar();
    ASSERT_GT(bar.maximum(), bar.pageStep());
    for (const int key : {Qt::Key_X, Qt::Key_F10, Qt::Key_Escape}) {
        press(key);
    }
    press(Qt::Key_Return, true);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(content->currentSlideIndex(), 0);
    const struct {
        Qt::Key key;
        int value;
    } rows[] = {{Qt::Key_PageDown, bar.pageStep()},
                {Qt::Key_Down, bar.pageStep() + bar.singleStep()},
                {Qt::Key_Up, bar.pageStep()},
                {Qt::Key_End, bar.maximum()},
                {Qt::Key_Home, 0},
                {Qt::Key_PageUp, 0}};
    for (const auto &row : rows) {
        press(row.key);
        EXPECT_EQ(bar.value(), row.value) << row.key;
    }
}

TEST_F(VelmarView, GoesWithTheTabKeyFromTheSlideToTheBar) {
    auto *area = content->findChild<QScrollArea *>();
    auto &bar = *view->findChild<NavigationViewController *>();
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    area->setFocus();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(area, &tab);
    EXPECT_EQ(window.focusWidget(), &bar.nextButton()) << "the other button is hidden on the first slide";
    view->reloadInterfaceSavingVariables();
    settle();
    area = content->findChild<QScrollArea *>();
    area->setFocus();
    QCoreApplication::sendEvent(area, &tab);
    EXPECT_EQ(window.focusWidget(), &view->findChild<NavigationViewController *>()->nextButton());
}

TEST_F(VelmarView, KeepsTheFocusWhereTheKeyboardCanGoOn) {
    auto *area = content->findChild<QScrollArea *>();
    auto &bar = *view->findChild<NavigationViewController *>();
    EXPECT_EQ(window.focusWidget(), &bar.nextButton());
    area->setFocus();
    window.hide();
    window.show();
    EXPECT_EQ(window.focusWidget(), area) << "only the first show takes the focus";
    press(Qt::Key_Right);
    EXPECT_EQ(window.focusWidget(), &bar.nextButton()) << "the slide with the focus is gone";
    press(Qt::Key_Left);
    bar.nextButton().setConcealed(true);
    area->setFocus();
    window.resize(600, 4000);
    settle();
    EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(window.focusWidget(), view.get()) << "nothing else is left to take it";
    bar.hide();
    view->clearFocus();
    ASSERT_EQ(window.focusWidget(), nullptr);
    center.post(NavigationNotifications::willNavigateToNextSlide);
    settle();
    EXPECT_EQ(content->currentSlideIndex(), 1);
    EXPECT_EQ(window.focusWidget(), view.get());
}

} // namespace
} // namespace velmar
