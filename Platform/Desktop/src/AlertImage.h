#pragma once

#include <Interaction/Alert.h>

#include <QImage>

#include <memory>
#include <string>
#include <utility>

namespace velmar {

/// The picture of an icon, no larger than it can be shown.
class AlertImage final : public AlertIcon {
public:
    /// Null if the path is not that of a file with a picture, of whatever kind the toolkit reads.
    [[nodiscard]] static std::shared_ptr<const AlertImage> read(const std::string &path);

    /// The same as an icon; null for one that is not from `read`.
    [[nodiscard]] static const AlertImage *from(const AlertIcon *icon);

    explicit AlertImage(QImage image) : image_(std::move(image)) {}
    [[nodiscard]] const QImage &image() const noexcept { return image_; }

private:
    QImage image_;
};

} // namespace velmar
