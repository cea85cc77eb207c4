#include "ImageFile.h"

#include <QFileInfo>
#include <QImageReader>

#include <utility>

namespace velmar {

std::optional<ImageFile> ImageFile::read(const std::string &path, QSize largest) {
    const QString name = QString::fromStdString(path);
    // Opening a pipe could block forever.
    if (!QFileInfo(name).isFile()) {
        return std::nullopt;
    }
    QImageReader reader(name);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    const bool isDrawing = reader.format().startsWith("svg");
    if (size.isValid() && (isDrawing || size.width() > largest.width() || size.height() > largest.height())) {
        reader.setScaledSize(size.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1}));
    }
    QImage image = reader.read();
    if (image.isNull()) {
        return std::nullopt;
    }
    const bool isTurned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const QSize shown = isTurned ? size.transposed() : size;
    return ImageFile{image, size.isValid() ? shown : image.size()};
}

} // namespace velmar
