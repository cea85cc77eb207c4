#include "AlertSign.h"

#include "AlertImage.h"

#include <QPainter>
#include <QPainterPath>

#include <utility>

namespace velmar {

namespace {

// In points.
constexpr qreal signGrid = 44; // side of the square in which the signs are designed
constexpr qreal badgeSide = 28;

/// Draws a triangle for a warning or error, a disc for information. An outlined sign stands out on a picture.
void drawSign(QPainter &painter, Alert::Style style, const QRectF &square, const QPalette &palette,
              bool isOutlined) {
    painter.save();
    painter.translate(square.topLeft());
    painter.scale(square.width() / signGrid, square.height() / signGrid);
    const bool isDisc = style == Alert::Style::informational;
    const QColor color = isDisc                           ? palette.color(QPalette::Highlight)
                         : style == Alert::Style::warning ? QColor(0xd9, 0x8a, 0x00)
                                                          : QColor(0xd1, 0x34, 0x38);
    QPainterPath shape;
    if (isDisc) {
        shape.addEllipse(QRectF(3, 3, 38, 38));
    } else {
        shape.addPolygon(QPolygonF({{22, 6}, {40, 38}, {4, 38}, {22, 6}}));
    }
    if (isOutlined) {
        painter.strokePath(
            shape, QPen(palette.color(QPalette::Window), 10, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    painter.setBrush(color);
    painter.setPen(QPen(color, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(shape);
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
    if (isDisc) {
        painter.drawPoint(QPointF(22, 13));
        painter.drawLine(QPointF(22, 21), QPointF(22, 31));
    } else {
        painter.drawLine(QPointF(22, 17), QPointF(22, 26));
        painter.drawPoint(QPointF(22, 33));
    }
    painter.restore();
}

} // namespace

AlertSign::AlertSign(Alert::Style style, std::shared_ptr<const AlertIcon> icon, QWidget *parent)
    : QWidget(parent), style_(style), icon_(std::move(icon)) {
    setFixedSize(side, side);
}

void AlertSign::paintEvent(QPaintEvent * /*event*/) {
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const AlertImage *picture = AlertImage::from(icon_.get());
    if (picture == nullptr) {
        drawSign(painter, style_, rect(), palette(), false);
        return;
    }
    QRectF place(QPointF(), QSizeF(picture->image().size()).scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(QRectF(rect()).center());
    painter.drawImage(place, picture->image());
    if (style_ != Alert::Style::informational) {
        drawSign(painter, style_, QRectF(side - badgeSide, side - badgeSide, badgeSide, badgeSide), palette(),
                 true);
    }
}

} // namespace velmar
