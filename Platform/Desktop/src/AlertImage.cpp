#include "AlertImage.h"

#include <QFileInfo>
#include <QImageReader>

namespace velmar {

namespace {

// Pixels, enough for the icon's 64 points on the densest screens.
constexpr QSize largest(256, 256);

} // namespace

std::shared_ptr<const AlertImage> AlertImage::read(const std::string &path) {
    const QString name = QString::fromStdString(path);
    // Opening what is no file, such as a pipe, could wait for ever.
    if (!QFileInfo(name).isFile()) {
        return nullptr;
    }
    QImageReader reader(name);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.width() > largest.width() || size.height() > largest.height()) {
        reader.setScaledSize(size.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    QImage image = reader.read();
    return image.isNull() ? nullptr : std::make_shared<const AlertImage>(std::move(image));
}

const AlertImage *AlertImage::from(const AlertIcon *icon) {
    return dynamic_cast<const AlertImage *>(icon);
}

} // namespace velmar
