#include <Views/CustomViews/StyleConfigurableTextView.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Font.h>
#include <Views/CustomViews/Theme.h>

#include <QEvent>
#include <QPainter>

#include <cmath>

namespace velmar {

namespace {

// Large text needs less line spacing.
constexpr double largeSize = 20;
constexpr double lineSpacing = 1.3;
constexpr double largeLineSpacing = 1.15;
constexpr int comfortableWidth = 480; // Points.

/// Returns the direction of the first character with a strong direction, otherwise `surrounding`.
Qt::LayoutDirection directionOf(const QString &text, Qt::LayoutDirection surrounding) {
    for (const char32_t character : text.toUcs4()) {
        switch (QChar::direction(character)) {
        case QChar::DirL:
            return Qt::LeftToRight;
        case QChar::DirR:
        case QChar::DirAL:
            return Qt::RightToLeft;
        default:
            break;
        }
    }
    return surrounding;
}

} // namespace

StyleConfigurableTextView::StyleConfigurableTextView(QWidget *parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
    QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void StyleConfigurableTextView::setContent(const QString &content, std::optional<FontItem> fontItem) {
    fontItem_ = std::move(fontItem);
    setText(content); // Before setFont(), which breaks the text into lines.
    const QFont standard = Theme::font(Theme::bodySize);
    setFont(fontItem_ ? fontOf(*fontItem_, standard) : standard);
    prepareLayout();
    setAccessibleName(content);
    updateColor();
    updateGeometry();
}

void StyleConfigurableTextView::updateColor() {
    const std::optional<ColorItem> item = fontItem_ ? fontItem_->_color() : std::nullopt;
    color_ = item ? qColor(Color::of(*item, DesktopAppearance::isDark(palette())))
                  : palette().color(QPalette::WindowText);
    update();
}

void StyleConfigurableTextView::changeEvent(QEvent *event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateColor();
    } else if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        prepareLayout();
    }
}

void StyleConfigurableTextView::prepareLayout() {
    QString content = text();
    content.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    content.replace(QLatin1Char('\n'), QChar::LineSeparator);
    const Qt::LayoutDirection direction = directionOf(content, layoutDirection());
    QTextOption option(alignmentOf(fontItem_ ? fontItem_->_textAlignment() : std::nullopt, direction));
    option.setTextDirection(direction);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout_.setText(content);
    layout_.setFont(font());
    layout_.setTextOption(option);
    layout_.setCacheEnabled(true);
    brokenWidth_ = -1;
}

void StyleConfigurableTextView::breakLines(int width) const {
    if (width == brokenWidth_) {
        return;
    }
    const bool isLarge = font().pointSizeF() > Theme::font(largeSize).pointSizeF();
    const qreal spacing = isLarge ? largeLineSpacing : lineSpacing;
    qreal y = 0;
    layout_.beginLayout();
    for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
        line.setLineWidth(width);
        const qreal height = std::ceil(line.height() * spacing);
        line.setPosition({0, y + (height - line.height()) / 2});
        y += height;
    }
    layout_.endLayout();
    brokenWidth_ = width;
    brokenHeight_ = static_cast<int>(std::ceil(y));
}

int StyleConfigurableTextView::heightForWidth(int width) const {
    breakLines(std::max(1, width));
    return brokenHeight_;
}

QSize StyleConfigurableTextView::sizeHint() const {
    // The layout uses heightForWidth().
    return {comfortableWidth, fontMetrics().height()};
}

QSize StyleConfigurableTextView::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

void StyleConfigurableTextView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setPen(color_);
    breakLines(std::max(1, width()));
    layout_.draw(&painter, {0, 0});
}

} // namespace velmar
