#include <Desktop/StatusItem.h>

#include "ImageFile.h"

#include <Dispatch/UncaughtHandler.h>

#include <QApplication>
#include <QCursor>
#include <QEvent>
#include <QPainter>
#include <QPalette>
#include <QSystemTrayIcon>

#include <utility>

namespace velmar {

namespace {

// In pixels: sufficient for the panels of the densest screens.
constexpr QSize largest(96, 96);
constexpr int sides[] = {16, 22, 24, 32, 48, 64, 96};

/// Returns the image's shape in one colour, scaled to fit a square.
QPixmap shapeOf(const QImage &image, const QColor &color, int side) {
    QPixmap square(side, side);
    square.fill(Qt::transparent);
    const QImage fitting = image.scaled(square.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&square);
    painter.drawImage((side - fitting.width()) / 2, (side - fitting.height()) / 2, fitting);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(square.rect(), color);
    return square;
}

} // namespace

std::optional<StatusItemImage> StatusItemImage::read(const std::string &path) {
    std::optional<ImageFile> file = ImageFile::read(path, largest);
    if (!file) {
        return std::nullopt;
    }
    return StatusItemImage(std::make_shared<const QImage>(std::move(file->image)), file->size.width(),
                           file->size.height());
}

class StatusItem::Icon final : public QObject {
public:
    Icon(const QString &title, std::function<void()> action) : action_(std::move(action)) {
        tray_.setToolTip(title);
        connect(&tray_, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger) {
                runReportingUncaught("StatusItem", action_);
            }
        });
        qApp->installEventFilter(this);
        draw();
    }

    void setImage(StatusItemImage image) {
        image_ = std::move(image);
        draw();
    }

    QSystemTrayIcon &tray() { return tray_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange) {
            draw();
        }
        return false;
    }

private:
    void draw() {
        // A null icon would not be shown and could not be clicked.
        const QImage image = image_ ? image_->image() : QPixmap(largest).toImage();
        const QColor color =
            image_ ? QApplication::palette().color(QPalette::WindowText) : QColor(Qt::transparent);
        QIcon icon;
        for (const int side : sides) {
            icon.addPixmap(shapeOf(image, color, side));
        }
        tray_.setIcon(icon);
    }

    QSystemTrayIcon tray_;
    std::function<void()> action_;
    std::optional<StatusItemImage> image_;
};

StatusItem::StatusItem(std::string title, std::function<void()> action)
    : icon_(std::make_unique<Icon>(QString::fromStdString(title), std::move(action))) {}

StatusItem::~StatusItem() = default;

void StatusItem::setImage(StatusItemImage image) {
    icon_->setImage(std::move(image));
}

void StatusItem::show() {
    icon_->tray().show();
}

ScreenFrame StatusItem::frame() const {
    const QRect item = icon_->tray().geometry();
    if (item.isValid()) {
        return {item.x(), item.y(), item.width(), item.height()};
    }
    const QPoint pointer = QCursor::pos();
    return {pointer.x(), pointer.y(), 1, 1};
}

} // namespace velmar
