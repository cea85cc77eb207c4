#include <Views/CustomViews/Theme.h>

#include <Desktop/DesktopAppearance.h>

#include <QApplication>
#include <QPainter>
#include <QScreen>
#include <QStyleOption>

namespace velmar {

namespace {

// Points.
constexpr int buttonHeight = 36;
constexpr int buttonMinimumWidth = 104;
constexpr int buttonSidePadding = 20;
constexpr qreal buttonRadius = Theme::cornerRadius;
constexpr int scrollBarThickness = 12;
constexpr int scrollThumbMinimumLength = 32;

struct Colors {
    QColor page, bar, text, quietText, separator, button, accent, onAccent;
};

const Colors &colors(bool isDark) {
    static const Colors light{QColor(0xff, 0xff, 0xff), QColor(0xf6, 0xf7, 0xf9), QColor(0x1b, 0x1f, 0x27),
                              QColor(0x59, 0x61, 0x70), QColor(0xe1, 0xe4, 0xea), QColor(0xe4, 0xe8, 0xee),
                              QColor(0x1f, 0x5f, 0xd6), QColor(0xff, 0xff, 0xff)};
    static const Colors dark{QColor(0x1d, 0x1f, 0x24), QColor(0x25, 0x28, 0x2e), QColor(0xf1, 0xf3, 0xf6),
                             QColor(0xa9, 0xb0, 0xbd), QColor(0x38, 0x3c, 0x45), QColor(0x38, 0x3c, 0x45),
                             QColor(0x3b, 0x76, 0xe6), QColor(0xff, 0xff, 0xff)};
    return isDark ? dark : light;
}

QColor fillOf(const QStyleOptionButton &button) {
    const bool isPrimary = button.features.testFlag(QStyleOptionButton::DefaultButton);
    const QColor base = button.palette.color(isPrimary ? QPalette::Highlight : QPalette::Button);
    if (button.state.testFlag(QStyle::State_Sunken)) {
        return base.darker(118);
    }
    const bool isHovered =
        button.state.testFlag(QStyle::State_MouseOver) && button.state.testFlag(QStyle::State_Enabled);
    return isHovered ? base.darker(108) : base;
}

// Draws the filled shape of a button and, with keyboard focus, its ring.
void drawButtonShape(const QStyleOptionButton &button, QPainter &painter, const QRectF &shape, qreal radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fillOf(button));
    painter.drawRoundedRect(shape, radius, radius);
    constexpr auto keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((button.state & keyboardFocus) == keyboardFocus) {
        Theme::drawFocusRing(painter, shape.adjusted(-3, -3, 3, 3), button.palette, radius);
    }
    painter.restore();
}

void drawButtonBevel(const QStyleOptionButton &button, QPainter &painter) {
    const qreal room = Theme::focusRingRoom;
    drawButtonShape(button, painter, QRectF(button.rect).adjusted(room, room, -room, -room), buttonRadius);
}

} // namespace

Theme::Theme(const DesktopAppearance &appearance)
    : QProxyStyle(QStringLiteral("Fusion")), appearance_(appearance) {}

void Theme::install(const DesktopAppearance &appearance) {
    QApplication::setStyle(new Theme(appearance)); // Owned by the application.
    QApplication::setFont(font(controlSize));
    // An empty palette makes the application query the style again.
    connect(&appearance, &DesktopAppearance::preferenceChanged, qApp,
            [] { QApplication::setPalette(QPalette()); });
}

QFont Theme::font(double points) {
    QFont font = QApplication::font();
    const QScreen *screen = QGuiApplication::primaryScreen();
    const qreal dotsPerInch = screen == nullptr ? 96 : screen->logicalDotsPerInchY();
    font.setPointSizeF(points * 72 / dotsPerInch);
    return font;
}

void Theme::drawRoundButton(QPainter &painter, const QStyleOptionButton &button) {
    const qreal diameter = std::min(button.rect.width(), button.rect.height()) - 2 * focusRingRoom;
    QRectF circle(0, 0, diameter, diameter);
    circle.moveCenter(QRectF(button.rect).center());
    drawButtonShape(button, painter, circle, diameter / 2);
    painter.setPen(button.palette.color(QPalette::ButtonText));
    painter.drawText(circle, Qt::AlignCenter, button.text);
}

void Theme::drawFocusRing(QPainter &painter, const QRectF &shape, const QPalette &palette, qreal radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Highlight), 2));
    painter.drawRoundedRect(shape, radius + 3, radius + 3);
    painter.restore();
}

void Theme::polish(QPalette &palette) {
    const Colors &own = colors(appearance_.prefersDark(palette));
    palette.setColor(QPalette::Window, own.page);
    palette.setColor(QPalette::WindowText, own.text);
    palette.setColor(QPalette::Base, own.page);
    palette.setColor(QPalette::AlternateBase, own.bar);
    palette.setColor(QPalette::Text, own.text);
    palette.setColor(QPalette::PlaceholderText, own.quietText);
    palette.setColor(QPalette::Button, own.button);
    palette.setColor(QPalette::ButtonText, own.text);
    palette.setColor(QPalette::Mid, own.separator);
    palette.setColor(QPalette::Highlight, own.accent);
    palette.setColor(QPalette::HighlightedText, own.onAccent);
    palette.setColor(QPalette::ToolTipBase, own.bar);
    palette.setColor(QPalette::ToolTipText, own.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, own.quietText);
    }
}

void Theme::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                        const QWidget *widget) const {
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButtonBevel && button != nullptr) {
        drawButtonBevel(*button, *painter);
    } else if (element == CE_PushButtonLabel && button != nullptr) {
        const bool isPrimary = button->features.testFlag(QStyleOptionButton::DefaultButton);
        const int inset = focusRingRoom + buttonSidePadding / 2;
        const QRect room = button->rect.adjusted(inset, 0, -inset, 0);
        const QString text = button->fontMetrics.elidedText(button->text, Qt::ElideRight, room.width());
        drawItemText(painter, room, Qt::AlignCenter | Qt::TextHideMnemonic, button->palette,
                     button->state.testFlag(State_Enabled), text,
                     isPrimary ? QPalette::HighlightedText : QPalette::ButtonText);
    } else {
        QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void Theme::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                               const QWidget *widget) const {
    if (control != CC_ScrollBar) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    QColor color = option->palette.color(QPalette::WindowText);
    const bool isActive = option->activeSubControls.testFlag(SC_ScrollBarSlider);
    color.setAlphaF(isActive ? 0.5F : 0.28F);
    painter->setBrush(color);
    const QRectF thumb =
        QRectF(subControlRect(control, option, SC_ScrollBarSlider, widget)).adjusted(3, 3, -3, -3);
    const qreal radius = std::min(thumb.width(), thumb.height()) / 2;
    painter->drawRoundedRect(thumb, radius, radius);
    painter->restore();
}

int Theme::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
        return scrollBarThickness;
    case PM_ScrollBarSliderMin:
        return scrollThumbMinimumLength;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Theme::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                     QStyleHintReturn *returnData) const {
    switch (hint) {
    case SH_ScrollBar_Transient:
        return 0;
    case SH_Widget_Animation_Duration:
        return appearance_.isAnimated() ? QProxyStyle::styleHint(hint, option, widget, returnData) : 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize Theme::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                              const QWidget *widget) const {
    if (type == CT_PushButton) {
        return {std::max(buttonMinimumWidth, size.width() + 2 * buttonSidePadding) + 2 * focusRingRoom,
                std::max(buttonHeight, size.height() + 12) + 2 * focusRingRoom};
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

QRect Theme::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                            const QWidget *widget) const {
    const auto *bar = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        return QProxyStyle::subControlRect(control, option, subControl, widget);
    }
    // The groove takes the whole length, without arrows.
    const bool isHorizontal = bar->orientation == Qt::Horizontal;
    const int length = isHorizontal ? bar->rect.width() : bar->rect.height();
    const int range = bar->maximum - bar->minimum;
    const auto visible = static_cast<qint64>(bar->pageStep) * length / std::max(1, range + bar->pageStep);
    const int thumb = range == 0 ? length
                                 : std::clamp(static_cast<int>(visible),
                                              std::min(scrollThumbMinimumLength, length), length);
    const int start = sliderPositionFromValue(bar->minimum, bar->maximum, bar->sliderPosition, length - thumb,
                                              bar->upsideDown);
    const auto span = [&](int from, int extent) {
        return isHorizontal ? QRect(bar->rect.x() + from, bar->rect.y(), extent, bar->rect.height())
                            : QRect(bar->rect.x(), bar->rect.y() + from, bar->rect.width(), extent);
    };
    switch (subControl) {
    case SC_ScrollBarSlider:
        return span(start, thumb);
    case SC_ScrollBarGroove:
        return span(0, length);
    case SC_ScrollBarSubPage:
        return span(0, start);
    case SC_ScrollBarAddPage:
        return span(start + thumb, length - start - thumb);
    default:
        return {};
    }
}

} // namespace velmar
