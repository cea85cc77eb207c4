#include <Views/CustomViews/StyleConfigurableButton.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Theme.h>

#include <QEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <utility>

namespace velmar {

namespace {

constexpr int roundDiameter = 28; // Points.

} // namespace

StyleConfigurableButton::StyleConfigurableButton(Style style, QWidget *parent)
    : PushButton(parent), style_(style) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
    updateColors();
}

void StyleConfigurableButton::setContent(const QString &title, std::optional<ColorItem> tint) {
    tint_ = std::move(tint);
    if (style_ == Style::info) {
        setText(QStringLiteral("?"));
        //: What a reader of the screen calls a round button with a question mark
        //% "More information"
        setAccessibleName(title.isEmpty() ? qtTrId("components.button.information") : title);
        setToolTip(title);
    } else {
        setLabel(title);
        if (title.isEmpty()) {
            //: What a reader of the screen calls a button without a title
            //% "Button"
            setAccessibleName(qtTrId("components.button.untitled"));
        }
    }
    updateColors();
}

void StyleConfigurableButton::updateColors() {
    const QPalette present = palette();
    if (tint_) {
        tintColor_ = qColor(Color::of(*tint_, DesktopAppearance::isDark(present)));
        // A translucent tint is blended with the page.
        const QColor page = present.color(QPalette::Window);
        const float alpha = tintColor_.alphaF();
        const auto over = [alpha](float above, float below) { return above * alpha + below * (1 - alpha); };
        const QColor seen =
            QColor::fromRgbF(over(tintColor_.redF(), page.redF()), over(tintColor_.greenF(), page.greenF()),
                             over(tintColor_.blueF(), page.blueF()));
        titleColor_ = contrast(Qt::white, seen) >= contrast(Qt::black, seen) ? Qt::white : Qt::black;
    } else {
        tintColor_ = present.color(QPalette::Button);
        titleColor_ = present.color(QPalette::ButtonText);
    }
    update();
}

QSize StyleConfigurableButton::sizeHint() const {
    constexpr QSize room(2 * Theme::focusRingRoom, 0);
    if (style_ == Style::info) {
        return {roundDiameter, roundDiameter + room.width()};
    }
    return PushButton::sizeHint() - room;
}

QSize StyleConfigurableButton::minimumSizeHint() const {
    // A long title may be elided.
    const QSize whole = sizeHint();
    return {std::min(whole.width(), fontMetrics().horizontalAdvance(u'M') * 6), whole.height()};
}

void StyleConfigurableButton::changeEvent(QEvent *event) {
    PushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateColors();
    }
}

void StyleConfigurableButton::paintEvent(QPaintEvent * /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.palette.setColor(QPalette::Button, tintColor_);
    option.palette.setColor(QPalette::ButtonText, titleColor_);
    // Aligned with adjacent texts: the side space of the ring is used only while the ring is visible.
    if (!hasFocus() || !window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        constexpr int room = Theme::focusRingRoom;
        option.rect.adjust(-room, 0, room, 0);
    }
    if (style_ == Style::simple) {
        painter.drawControl(QStyle::CE_PushButton, option);
        return;
    }
    Theme::drawRoundButton(painter, option);
}

} // namespace velmar
