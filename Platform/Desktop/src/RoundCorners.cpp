#include "RoundCorners.h"

#include "WindowManagerHints.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>

#include <utility>

namespace velmar {

class RoundCorners::Corner final : public QWidget {
public:
    /// `centre` is the centre of the circle in the widget's coordinates: one of its corners.
    Corner(QWidget &window, const RoundCorners &owner, QPoint centre)
        : QWidget(&window), owner_(owner), centre_(centre) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setFixedSize(owner.radius_, owner.radius_);
        show();
    }

    void place(const QRect &window) {
        move(centre_.x() == 0 ? window.right() + 1 - width() : 0,
             centre_.y() == 0 ? window.bottom() + 1 - height() : 0);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override {
        QPainterPath outside;
        outside.addRect(rect());
        QPainterPath circle;
        circle.addEllipse(QPointF(centre_), width(), height());
        outside = outside.subtracted(circle);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (!owner_.behind_) {
            painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            painter.fillPath(outside, Qt::black);
            return;
        }
        QPixmap picture(size() * devicePixelRatio());
        picture.setDevicePixelRatio(devicePixelRatio());
        picture.fill(Qt::transparent);
        QPainter behind(&picture);
        owner_.behind_(behind, {mapToGlobal(QPoint()), size()});
        behind.end();
        painter.setPen(Qt::NoPen);
        painter.setBrush(QBrush(picture));
        painter.drawPath(outside);
    }

private:
    const RoundCorners &owner_;
    QPoint centre_;
};

RoundCorners::RoundCorners(QWidget &window, int radius)
    : window_(window), radius_(radius), isSeenThrough_(windowsAreComposited()) {
    window_.setAttribute(Qt::WA_TranslucentBackground, isSeenThrough_);
    window_.installEventFilter(this);
    if (isSeenThrough_) {
        setBehind(nullptr);
    }
}

void RoundCorners::setBehind(Behind behind) {
    behind_ = std::move(behind);
    if (corners_.empty()) {
        window_.clearMask();
        for (const QPoint centre :
             {QPoint(radius_, radius_), QPoint(0, radius_), QPoint(radius_, 0), QPoint()}) {
            corners_.push_back(new Corner(window_, *this, centre));
        }
        place();
    }
    for (Corner *corner : corners_) {
        corner->update();
    }
}

void RoundCorners::place() {
    if (corners_.empty()) {
        QPainterPath path;
        path.addRoundedRect(QRectF(window_.rect()), radius_, radius_);
        window_.setMask(QRegion(path.toFillPolygon().toPolygon()));
    }
    for (Corner *corner : corners_) {
        corner->place(window_.rect());
    }
}

void RoundCorners::raise() {
    for (Corner *corner : corners_) {
        corner->raise();
    }
}

bool RoundCorners::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize) {
        place();
    } else if (event->type() == QEvent::ChildPolished) {
        raise(); // raised above children added later
    }
    return QObject::eventFilter(watched, event);
}

} // namespace velmar
