#include "../src/BlurredPicture.h"

#include <Desktop/MainMenu.h>
#include <Desktop/Popover.h>
#include <Desktop/StatusItem.h>
#include <Support/QtTest.h>
#include <Testing/TemporaryDirectory.h>

#include <QImage>
#include <QScreen>

namespace velmar {
namespace {

TEST(BlurredPictures, KeepTheirColoursAndNothingThatCanBeRead) {
    QImage page(800, 600, QImage::Format_RGB32);
    page.fill(QColor(90, 120, 150));
    const QImage plain = blurredPicture(page);
    EXPECT_EQ(plain.size(), QSize(200, 150));
    EXPECT_EQ(plain.pixelColor(0, 0), QColor(90, 120, 150));
    EXPECT_EQ(plain.pixelColor(199, 149), QColor(90, 120, 150));
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            page.setPixel(x, y, (x / 12 + y / 12) % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
        }
    }
    const QImage text = blurredPicture(page);
    for (int x = 20; x < 180; ++x) {
        EXPECT_NEAR(qGray(text.pixel(x, 75)), 127, 4) << "letters of that size are gone";
    }
    EXPECT_TRUE(blurredPicture({}).isNull());
    EXPECT_EQ(blurredPicture(page.copy(0, 0, 1, 1)).size(), QSize(1, 1));
}

TEST(Popovers, StandBesideTheirPlaceAndOnTheScreen) {
    const QRect area(100, 30, 1000, 700);
    const QSize size(400, 300);
    const std::pair<QRect, QPoint> cases[] = {{{600, 6, 20, 20}, {409, 30}},
                                              {{600, 100, 20, 20}, {409, 124}},
                                              {{1080, 6, 20, 20}, {700, 30}},
                                              {{100, 740, 20, 20}, {100, 430}},
                                              {{600, 500, 20, 20}, {409, 196}}};
    for (const auto &[place, origin] : cases) {
        EXPECT_EQ(Popover::originOf(place, size, area), origin);
    }
    EXPECT_EQ(Popover::originOf({600, 6, 20, 20}, {2000, 2000}, area), area.topLeft());
}

class StatusItems : public QtTest<> {};

TEST_F(StatusItems, HaveAPopoverOnTheScreenThatIsHiddenRatherThanClosed) {
    MainMenu menu;
    Popover popover(menu);
    auto *content = new QWidget;
    content->setFocusPolicy(Qt::StrongFocus);
    popover.window().setContent(content);
    popover.toggle({-9000, -9000, 1, 1}, {5000, 5000}, Popover::Behavior::semitransient);
    EXPECT_TRUE(popover.window().isVisible());
    EXPECT_FALSE(content->hasFocus());
    EXPECT_TRUE(popover.window().screen()->geometry().contains(popover.window().geometry()));
    EXPECT_FALSE(popover.window().close()) << "the request of a window manager";
    EXPECT_FALSE(popover.window().isVisible());
    EXPECT_EQ(popover.window().content(), content);
}

TEST_F(StatusItems, HaveAPopoverThatIsActiveHoweverSoonItIsCalledBack) {
    MainMenu menu;
    Popover popover(menu);
    const auto click = [&popover] {
        popover.toggle({0, 0, 1, 1}, {100, 100}, Popover::Behavior::semitransient);
        QCoreApplication::processEvents();
        return popover.window().isVisible();
    };
    EXPECT_TRUE(click());
    EXPECT_TRUE(popover.window().isActiveWindow());
    EXPECT_FALSE(click());
    EXPECT_FALSE(click()) << "the toolkit still takes it for the window with the keyboard";
    EXPECT_FALSE(click()) << "one more click takes the call back";
    EXPECT_FALSE(click());
    QWidget other; // Gets the keyboard on the platform of the tests, which has no window manager.
    other.show();
    while (!popover.window().isVisible()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
    EXPECT_TRUE(popover.window().isActiveWindow());
}

TEST_F(StatusItems, KnowTheSizeOfAPictureHoweverLargeItIs) {
    const TemporaryDirectory directory;
    for (const QSize size : {QSize(28, 20), QSize(18, 18), QSize(4000, 10)}) {
        const std::string path = directory.path() + "/icon.png";
        QImage picture(size, QImage::Format_ARGB32);
        picture.fill(Qt::red);
        ASSERT_TRUE(picture.save(QString::fromStdString(path)));
        const auto image = StatusItemImage::read(path);
        ASSERT_TRUE(image.has_value());
        EXPECT_EQ(QSize(image->width(), image->height()), size);
        EXPECT_LE(image->image().width(), 100) << "no larger than it is shown";
    }
}

} // namespace
} // namespace velmar
