#include <Views/CustomViews/StyleConfigurableTextView.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Font.h>
#include <Views/CustomViews/Theme.h>

#include <QEvent>
#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace velmar {

namespace {

// Large type wants less air between its lines.
constexpr double largeSize = 20;
constexpr double lineSpacing = 1.3;
constexpr double largeLineSpacing = 1.15;
constexpr int comfortableWidth = 480; // Points.

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
    const QFont standard = Theme::font(Theme::bodySize);
    setFont(fontItem_ ? fontOf(*fontItem_, standard) : standard);
    setText(content);
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
    }
}

qreal StyleConfigurableTextView::layOut(qreal width, QPainter *painter) const {
    QString content = text();
    content.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    content.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(content, font());
    QTextOption option(alignmentOf(fontItem_ ? fontItem_->_textAlignment() : std::nullopt));
    // The text's own, whatever the program's language: an Arabic sentence begins on the right everywhere.
    option.setTextDirection(content.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    const bool isLarge = font().pointSizeF() > Theme::font(largeSize).pointSizeF();
    const qreal spacing = isLarge ? largeLineSpacing : lineSpacing;
    qreal y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const qreal height = std::ceil(line.height() * spacing);
        line.setPosition({0, y + (height - line.height()) / 2});
        y += height;
    }
    layout.endLayout();
    if (painter != nullptr) {
        painter->setPen(color_);
        layout.draw(painter, {0, 0});
    }
    return y;
}

int StyleConfigurableTextView::heightForWidth(int width) const {
    return static_cast<int>(std::ceil(layOut(std::max(1, width), nullptr)));
}

QSize StyleConfigurableTextView::sizeHint() const {
    return {comfortableWidth, heightForWidth(comfortableWidth)};
}

QSize StyleConfigurableTextView::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

void StyleConfigurableTextView::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    layOut(width(), &painter);
}

} // namespace velmar
