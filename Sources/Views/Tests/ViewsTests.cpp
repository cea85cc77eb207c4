#include "ViewTest.h"

#include <Foundation/NotificationCenter.h>
#include <Views/Content/Components/Button.h>
#include <Views/Content/Components/ComponentTable.h>
#include <Views/Content/Slides/SlideViewController.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Font.h>
#include <Views/CustomViews/StyleConfigurableButton.h>
#include <Views/Navigation/NavigationButton.h>

#include <Support/FactoryTableTest.h>
#include <Support/RecordedLog.h>

#include <QKeyEvent>
#include <QScrollArea>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace velmar {
namespace {

class Views : public ViewTest<> {
protected:
    static SlideItem slide(const std::vector<std::vector<ComponentItem>> &containers) {
        SlideItem item;
        std::vector<ContainerItem> items;
        for (const auto &components : containers) {
            ContainerItem container;
            container._components.set(components);
            items.push_back(container);
        }
        item._containers.set(items);
        return item;
    }

    std::unique_ptr<SlideViewController> shown(const SlideItem &item, SlideViewController::Kind kind,
                                               int width) {
        auto view =
            std::make_unique<SlideViewController>(item, kind, center, services.bundle, appearance(), nullptr);
        view->resize(width, 400);
        view->show();
        settle();
        return view;
    }

    NotificationCenter center;
};

TEST_F(Views, AComponentOfEachTypeHasAViewOrIsNamedAsNotBuilt) {
    expectEachTypeOnce(componentTable());
}

TEST_F(Views, AComponentOfATypeThatIsNotBuiltLeavesItsPlaceEmpty) {
    const RecordedLog log;
    const auto view =
        shown(slide({{{ComponentItem::Image()}, text("Behind")}}), SlideViewController::Kind::standard, 600);
    const auto alone = shown(slide({{text("Behind")}}), SlideViewController::Kind::standard, 600);
    EXPECT_EQ(placedTexts(*view), placedTexts(*alone));
    EXPECT_EQ(log.lines(),
              std::vector<std::string>{"warning: Components of the type 'Image' cannot be shown yet"});
}

TEST_F(Views, ATextIsAsHighAsItsWidthAsksForAndNeverWiderThanItsPlace) {
    StyleConfigurableTextView view;
    view.setContent("One line", {});
    const int line = view.heightForWidth(400);
    EXPECT_GE(line, QFontMetrics(view.font()).height());
    view.setContent("One\r\ntwo\nthree", {});
    EXPECT_EQ(view.heightForWidth(400), 3 * line);
    view.setContent(QString(200, 'x'), {});
    EXPECT_GT(view.heightForWidth(200), 3 * line) << "a word without a break";
    EXPECT_LT(view.minimumSizeHint().width(), 100);
}

TEST_F(Views, ATextBeginsWhereItsOwnDirectionDoesUnlessItIsAligned) {
    using enum FontItem::TextAlignment;
    struct Case {
        const char *text;
        std::optional<FontItem::TextAlignment> alignment;
        Qt::LayoutDirection surrounding;
        bool isOnTheRight;
    };
    for (const auto &[text, alignment, surrounding, isOnTheRight] :
         {Case{"1. Text", {}, Qt::LeftToRight, false}, Case{"1. Text", natural, Qt::RightToLeft, false},
          Case{"1. نص", {}, Qt::LeftToRight, true}, Case{"1. نص", natural, Qt::RightToLeft, true},
          Case{"12", {}, Qt::LeftToRight, false}, Case{"12", {}, Qt::RightToLeft, true},
          Case{"Text", right, Qt::LeftToRight, true}, Case{"نص", left, Qt::RightToLeft, false}}) {
        StyleConfigurableTextView view;
        view.setLayoutDirection(surrounding);
        FontItem font;
        font._textAlignment.set(alignment);
        view.setContent(QString::fromUtf8(text), font);
        view.resize(400, 40);
        const QImage picture = view.grab().toImage();
        QImage blank(200, 40, picture.format());
        blank.fill(view.palette().color(QPalette::Window));
        EXPECT_EQ(picture.copy(0, 0, 200, 40) == blank, isOnTheRight) << text << ' ' << surrounding;
        EXPECT_EQ(picture.copy(200, 0, 200, 40) == blank, !isOnTheRight) << text << ' ' << surrounding;
    }
}

TEST_F(Views, AFontIsTheItemsWhereItSaysSo) {
    const QFont standard = Theme::font(Theme::bodySize);
    FontItem item;
    EXPECT_EQ(fontOf(item, standard), standard);
    item._size.set(30);
    item._systemFontWeight.set(FontItem::SystemFontWeight::semibold);
    EXPECT_EQ(fontOf(item, standard).weight(), QFont::DemiBold);
    EXPECT_NEAR(fontOf(item, standard).pointSizeF(), 2 * standard.pointSizeF(), 0.01);
    item._name.set("DejaVu Serif");
    EXPECT_EQ(fontOf(item, standard).families().first(), "DejaVu Serif");
    EXPECT_EQ(fontOf(item, standard).weight(), standard.weight());
    item._size.set(1e300);
    EXPECT_NEAR(fontOf(item, standard).pointSizeF(), Theme::font(1000).pointSizeF(), 0.01);
    item._size.set(-3);
    EXPECT_EQ(fontOf(item, standard).pointSizeF(), standard.pointSizeF());
}

TEST_F(Views, ColoursFollowTheAppearanceWhileTheyAreOnShow) {
    ColorItem color;
    color._lightMode.set({0x1B, 0x5F, 0xC1, {}});
    color._darkMode.set({0x7F, 0xB4, 0xFF, {}});
    FontItem font;
    font._color.set(color);
    StyleConfigurableTextView view;
    view.setContent("Coloured", font);
    StyleConfigurableTextView plain;
    plain.setContent("Plain", {});
    for (const bool isDark : {false, true, false}) {
        appearance().setPrefersDark(isDark);
        settle();
        EXPECT_EQ(view.color().name().toStdString(), isDark ? "#7fb4ff" : "#1b5fc1");
        EXPECT_EQ(DesktopAppearance::isDark(plain.palette()), isDark);
        EXPECT_GE(contrast(plain.color(), plain.palette().color(QPalette::Window)), 7);
        EXPECT_GE(contrast(plain.palette().color(QPalette::HighlightedText),
                           plain.palette().color(QPalette::Highlight)),
                  4);
    }
    appearance().setPrefersDark({});
    color._lightMode.set({0x11, 0x22, 0x33, 0x44});
    color._alphaLight.set(0.5);
    color._alphaDark.set(0.5);
    const RecordedLog log;
    EXPECT_EQ(Color::of(color, true).alpha, 0.5);
    EXPECT_EQ(Color::of(color, false).alpha, 0x44 / 255.0);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_TRUE(log.lines()[0].starts_with("warning: #11223344. Specifying the alpha inside"));
}

TEST_F(Views, ContainersStandSideBySideAndScrollWhenTheyAreTooHigh) {
    std::vector<ComponentItem> many(60, text("A line of many"));
    const SlideItem item = slide({many, {text("Short")}});
    const auto view = shown(item, SlideViewController::Kind::standard, 800);
    const auto areas = view->findChildren<QScrollArea *>();
    ASSERT_EQ(areas.size(), 2);
    EXPECT_GT(areas[0]->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(areas[0]->focusPolicy(), Qt::TabFocus);
    EXPECT_EQ(areas[0]->accessibleName(), "A line of many");
    EXPECT_EQ(areas[1]->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(areas[1]->focusPolicy(), Qt::NoFocus);
}

TEST_F(Views, AFlexibleSpacerTakesWhatIsLeft) {
    ComponentItem::Spacer fixed;
    fixed._height.set(30);
    const SlideItem item =
        slide({{ComponentItem{fixed}, ComponentItem{ComponentItem::Spacer()}, text("Bottom")}});
    const auto view = shown(item, SlideViewController::Kind::inMenuBar, 400);
    const auto *bottom = view->findChild<StyleConfigurableTextView *>();
    const int end = bottom->mapTo(view.get(), QPoint(0, bottom->height())).y();
    EXPECT_GE(end, 400 - 24);
    EXPECT_LE(end, 400);
}

TEST_F(Views, AButtonShowsItsLabelCharacterForCharacterInAColourThatIsReadable) {
    NavigationButton button(true, nullptr);
    button.setLabel("Save & Quit");
    EXPECT_EQ(button.text(), "Save && Quit");
    EXPECT_EQ(button.accessibleName(), "Save & Quit");
    button.resize(10, 30);
    button.setLabel("Quit & go");
    EXPECT_EQ(button.toolTip(), "Quit & go");
    EXPECT_TRUE(button.isDefault());
    button.setTextColor(button.palette().color(QPalette::Highlight));
    EXPECT_FALSE(button.isDefault());
    button.setTextColor(QColor(Qt::white));
    EXPECT_TRUE(button.isDefault());
}

/// Records the sets and triggers started by a button.
class Started final : public ActionDispatcherProtocol, public CustomTriggerHandler {
public:
    void dispatch(const ActionSet &set, std::function<void()> /*completionHandler*/) override {
        notes.append(set.item->_actions().empty() ? "set " : "actions ");
        identities.insert(set.id);
    }
    void dispatchSetsFor(std::string_view customTrigger) override { notes.append(customTrigger).append(" "); }
    std::string notes;
    std::set<UUID> identities;
};

TEST_F(Views, AButtonOfASlideRunsItsSetThenItsTrigger) {
    const auto started = std::make_shared<Started>();
    ComponentItem::Button item;
    item._text.set("Save & go");
    item._onClick.set(ActionSetItem());
    item._trigger.set("Go");
    ComponentViews::Button view(item, queue, nullptr, started, Trigger(started));
    auto *button = view.findChild<StyleConfigurableButton *>();
    EXPECT_EQ(view.title(), "Save & go");
    button->click();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(button, &key);
    EXPECT_EQ(started->notes, "set Go set Go ");
    EXPECT_EQ(started->identities.size(), 1U);
}

TEST_F(Views, AButtonIsReadableInAnyColour) {
    using Tint = std::optional<ColorItem::Specification>;
    for (const Tint &tint : {Tint(), Tint({0, 0, 0, {}}), Tint({255, 255, 255, {}}), Tint({31, 95, 214, {}}),
                             Tint({255, 212, 0, {}}), Tint({119, 119, 119, {}})}) {
        std::optional<ColorItem> color;
        if (tint) {
            color.emplace()._lightMode.set(*tint);
            color->_darkMode.set(*tint);
        }
        StyleConfigurableButton button(StyleConfigurableButton::Style::simple, nullptr);
        button.setContent(QString(10'000, 'x'), color);
        EXPECT_GE(contrast(button.titleColor(), button.tintColor()), 4.5) << (tint ? tint->text() : "none");
        EXPECT_LT(button.minimumSizeHint().width(), 200);
    }
}

TEST_F(Views, AKeyHeldDownPressesAButtonOnce) {
    NavigationButton button(true, nullptr);
    int clicks = 0;
    QObject::connect(&button, &QPushButton::clicked, &button, [&] { ++clicks; });
    for (const auto &[key, repeats] :
         {std::pair(Qt::Key_Return, false), {Qt::Key_Return, true}, {Qt::Key_Right, false}}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, {}, repeats);
        QCoreApplication::sendEvent(&button, &event);
        EXPECT_EQ(event.isAccepted(), key == Qt::Key_Return);
    }
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace velmar
