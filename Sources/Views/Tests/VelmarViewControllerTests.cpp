#include "VelmarView.h"

#include <Base/NavigationNotifications.h>
#include <Views/Content/Slides/SlideViewController.h>
#include <Views/Navigation/NavigationButton.h>

#include <Termination/TerminationNotifications.h>

#include <QAccessible>
#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QVariantAnimation>

#include <string>
#include <vector>

namespace velmar {
namespace {

TEST_F(VelmarView, TakesTheKeysThatScrollAndLeavesTheOthersAlone) {
    const QScrollBar &scroller = *content->findChild<QScrollArea *>()->verticalScrollBar();
    ASSERT_GT(scroller.maximum(), scroller.pageStep());
    for (const int key : {Qt::Key_X, Qt::Key_F10, Qt::Key_Escape}) {
        press(key);
    }
    press(Qt::Key_Return, true);
    EXPECT_EQ(scroller.value(), 0);
    EXPECT_EQ(content->currentSlideIndex(), 0);
    const struct {
        Qt::Key key;
        int value;
    } rows[] = {{Qt::Key_PageDown, scroller.pageStep()},
                {Qt::Key_Down, scroller.pageStep() + scroller.singleStep()},
                {Qt::Key_Up, scroller.pageStep()},
                {Qt::Key_End, scroller.maximum()},
                {Qt::Key_Home, 0},
                {Qt::Key_PageUp, 0}};
    for (const auto &row : rows) {
        press(row.key);
        EXPECT_EQ(scroller.value(), row.value) << row.key;
    }
}

TEST_F(VelmarView, IsMirroredWithTheLanguage) {
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const bool isMirrored = direction == Qt::RightToLeft;
        window.setLayoutDirection(direction);
        press(isMirrored ? Qt::Key_Left : Qt::Key_Right);
        EXPECT_EQ(content->currentSlideIndex(), 1);
        EXPECT_EQ(bar->nextButton().x() < bar->previousButton().x(), isMirrored);
        press(isMirrored ? Qt::Key_Right : Qt::Key_Left);
        EXPECT_EQ(content->currentSlideIndex(), 0);
    }
}

TEST_F(VelmarView, TellsWhyAQuitWasRefused) {
    center.post(TerminationNotifications::userTriesToQuitWhenNotAllMonitorsAreInstalled);
    center.post(TerminationNotifications::userTriesToQuitWhenNotAllMonitoredFilesArePresent);
    ASSERT_EQ(services.alerts.alerts.size(), 2U);
    EXPECT_EQ(services.alerts.alerts[0].messageText, "Not before all is installed");
    EXPECT_EQ(services.alerts.alerts[1].messageText,
              "general.alerts.wait-for-mandatory-files-before-quitting.title");
}

TEST_F(VelmarView, GoesWithTheTabKeyFromTheSlideToTheBar) {
    auto *area = content->findChild<QScrollArea *>();
    press(Qt::Key_Right);
    press(Qt::Key_Left);
    area->setFocus();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QCoreApplication::sendEvent(area, &tab);
    EXPECT_EQ(window.focusWidget(), &bar->nextButton()) << "the other button is hidden on the first slide";
    view->reloadInterfaceSavingVariables();
    settle();
    area = content->findChild<QScrollArea *>();
    area->setFocus();
    QCoreApplication::sendEvent(area, &tab);
    EXPECT_EQ(window.focusWidget(), &view->findChild<NavigationViewController *>()->nextButton());
}

TEST_F(VelmarView, KeepsTheFocusWhereTheKeyboardCanGoOn) {
    auto *area = content->findChild<QScrollArea *>();
    EXPECT_EQ(window.focusWidget(), &bar->nextButton());
    area->setFocus();
    window.hide();
    window.show();
    EXPECT_EQ(window.focusWidget(), area) << "only the first show takes the focus";
    press(Qt::Key_Right);
    EXPECT_EQ(window.focusWidget(), &bar->nextButton()) << "the slide with the focus is gone";
    press(Qt::Key_Left);
    bar->nextButton().setConcealed(true);
    area->setFocus();
    window.resize(600, 4000);
    settle();
    EXPECT_EQ(area->focusPolicy(), Qt::NoFocus);
    EXPECT_EQ(window.focusWidget(), view.get()) << "nothing else is left to take it";
    bar->hide();
    view->clearFocus();
    ASSERT_EQ(window.focusWidget(), nullptr);
    center.post(NavigationNotifications::willNavigateToNextSlide);
    settle();
    EXPECT_EQ(content->currentSlideIndex(), 1);
    EXPECT_EQ(window.focusWidget(), view.get());
}

TEST_F(VelmarView, CatchesUpWhenTheUserIsFasterThanTheAnimation) {
    appearance().setAnimated(true);
    bar->pressNext();
    queue.runUntilEmpty();
    bar->pressNext();
    queue.runUntilEmpty();
    EXPECT_EQ(log_.lines().back(), "debug: Successfully operated the slide transition [0 -> 1]")
        << "the first one ended when the second began";
    EXPECT_EQ(content->currentSlideIndex(), 2);
    window.resize(500, 400);
    QCoreApplication::processEvents();
    EXPECT_EQ(shownTexts(*content), QStringList("Third")) << "a new size ends a transition";
    bar->pressPrevious();
    content->rebuild();
    settle();
    EXPECT_EQ(content->findChildren<SlideViewController *>().size(), 1) << "made when they are needed";
    EXPECT_EQ(shownTexts(*content), QStringList("Second")) << "whatever transition was still to come";
}

TEST_F(VelmarView, HasTheLeavingSlideTakeNoClicks) {
    appearance().setAnimated(true);
    const QPoint onBoth(window.width() / 2 - 100, 30);
    const auto slideAt = [&] {
        const QWidget *widget = content->childAt(onBoth);
        while (widget != nullptr && qobject_cast<const SlideViewController *>(widget) == nullptr) {
            widget = widget->parentWidget();
        }
        return widget;
    };
    const auto *first = content->currentSlide();
    EXPECT_EQ(slideAt(), first);
    bar->pressNext();
    queue.runUntilEmpty();
    EXPECT_EQ(slideAt(), nullptr);
    bar->pressPrevious();
    queue.runUntilEmpty();
    window.resize(610, 400);
    settle();
    EXPECT_EQ(slideAt(), first) << "it takes them again when it is back";
}

TEST_F(VelmarView, GoesBackFromBehindTheLastSlide) {
    const auto model = std::make_shared<ContentViewModel>(queue, quits, center);
    ContentViewController beyond(model, services.bundle, appearance(), &window);
    model->setSelectedIndex(3, false);
    beyond.rebuild();
    EXPECT_EQ(beyond.currentSlide(), nullptr);
    beyond.show();
    model->setSelectedIndex(2, true);
    settle();
    EXPECT_EQ(shownTexts(beyond), QStringList("Third"));
}

TEST_F(VelmarView, ReloadsInTheModeOfTheLaunchAndFromTheFirstSlideWhenTheirNumberChanged) {
    press(Qt::Key_Right);
    const std::string other = slideOf(textComponent("Other"));
    const struct {
        const char *mode;
        std::string slides;
        const char *shown;
    } rows[] = {{"Simple", other + slideOf(textComponent("Second of three")) + other, "Second of three"},
                {"MenuBar", other + slideOf(textComponent("Second of two")), "Other"},
                {"MenuBar", "", "Other"}};
    for (const auto &[mode, slides, shown] : rows) {
        write(mode, slides);
        view->reloadInterfaceSavingVariables();
        settle();
        EXPECT_EQ(shownTexts(*content), QStringList(shown));
    }
    EXPECT_TRUE(log_.lines().back().starts_with("error: ")) << "no slides for the mode of the launch";
}

TEST_F(VelmarView, IsCalledLikeItsSlideByReadersOfTheScreen) {
    for (const char *name : {"Line 0", "Second"}) {
        auto *interface = QAccessible::queryAccessibleInterface(view.get());
        EXPECT_EQ(interface->text(QAccessible::Name), name);
        EXPECT_EQ(interface->role(), QAccessible::Grouping);
        press(Qt::Key_Right);
    }
}

TEST_F(VelmarView, IsBusyForReadersOfTheScreenAsLongAsAnythingMoves) {
    const auto isBusy = [this] {
        return QAccessible::queryAccessibleInterface(view.get())->state().busy != 0;
    };
    const auto end = [](const QObject &part) {
        for (auto *animation : part.findChildren<QVariantAnimation *>()) {
            animation->setCurrentTime(animation->totalDuration());
        }
    };
    // Animations don't advance without the event loop.
    appearance().setAnimated(true);
    EXPECT_FALSE(isBusy());
    bar->pressNext();
    queue.runUntilEmpty();
    EXPECT_TRUE(isBusy()) << "the slides move";
    end(*content);
    EXPECT_FALSE(isBusy());
    bar->pressPrevious();
    queue.runUntilEmpty();
    end(*content);
    EXPECT_TRUE(isBusy()) << "the button that led back fades out longer than the slides move";
    end(*bar);
    EXPECT_FALSE(isBusy());
}

TEST_F(VelmarView, TellsWhenTheAnimationOfAnEndIsOver) {
    std::vector<std::string> reached;
    std::vector<NotificationObserver> tokens;
    for (const auto name :
         {NavigationNotifications::didReachFirstSlide, NavigationNotifications::didReachLastSlide}) {
        tokens.push_back(center.addObserver(std::string(name), [&, name] { reached.emplace_back(name); }));
    }
    for (const int key : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Left}) {
        press(key);
    }
    EXPECT_EQ(reached,
              (std::vector<std::string>{"didReachLastSlideNotification", "didReachFirstSlideNotification"}));
}

TEST_F(VelmarView, KeepsTheButtonsAsTheLatestArrivalLeftThemAndTakesNoPressOfOneThatIsGoing) {
    center.post(NavigationNotifications::willNavigateToNextSlide);
    center.post(NavigationNotifications::willNavigateToPreviousSlide);
    settle();
    EXPECT_TRUE(bar->previousButton().isConcealed()) << "the arrival in the middle was told late";
    center.post(NavigationNotifications::currentSlideWantsToHideNextButton);
    center.post(NavigationNotifications::willReachLastSlide);
    settle();
    EXPECT_TRUE(bar->nextButton().isConcealed()) << "no press led there";
    center.post(NavigationNotifications::willNavigateToNextSlide);
    settle();
    appearance().setAnimated(true);
    bar->pressPrevious();
    settle();
    ASSERT_TRUE(bar->previousButton().isVisible());
    const std::size_t lines = log_.lines().size();
    bar->previousButton().click();
    settle();
    EXPECT_EQ(log_.lines().size(), lines);
}

} // namespace
} // namespace velmar
