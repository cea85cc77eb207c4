#include "Backdrop.h"

#include "WindowManagerHints.h"

#include <QCloseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <utility>

namespace velmar {

namespace {

constexpr float veil = 0.4F; // opacity of the page's colour over the picture

} // namespace

Backdrop::Backdrop(QImage picture)
    : QWidget(nullptr,
              Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus),
      picture_(std::move(picture)) {
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    winId(); // Creates the native window, which carries the hint.
    setOnEveryWorkspace(*windowHandle());
}

void Backdrop::setPlain(bool isPlain) {
    isPlain_ = isPlain;
    update();
}

void Backdrop::cover(const QRect &geometry) {
    setGeometry(geometry);
    if (!isVisible()) {
        setWindowState(windowState() | Qt::WindowFullScreen);
        show();
    }
}

void Backdrop::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange && isMinimized()) {
        setWindowState(windowState() & ~Qt::WindowMinimized);
    }
}

void Backdrop::closeEvent(QCloseEvent *event) {
    event->ignore();
}

void Backdrop::mousePressEvent(QMouseEvent * /*event*/) {
    emit pressed();
}

void Backdrop::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.translate(event->rect().topLeft());
    paint(painter, event->rect().translated(geometry().topLeft()));
}

void Backdrop::paint(QPainter &painter, const QRect &area) const {
    painter.save();
    painter.setClipRect(QRect(QPoint(), area.size()));
    const QRect whole = geometry().translated(-area.topLeft());
    QColor page = palette().color(QPalette::Window);
    if (!isPlain_ && !picture_.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(whole, picture_);
        page.setAlphaF(veil);
    }
    painter.fillRect(whole, page);
    painter.restore();
}

} // namespace velmar
