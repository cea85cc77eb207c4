#pragma once

#include <Interaction/Alert.h>

#include <QImage>

#include <memory>
#include <string>
#include <utility>

namespace velmar {

/// The picture of an alert's icon, reduced to the size needed.
class AlertImage final : public AlertIcon {
public:
    /// Returns nullptr if there is no picture at the path in a format that the toolkit reads.
    [[nodiscard]] static std::shared_ptr<const AlertImage> read(const std::string &path);

    /// Returns the icon as an AlertImage, or nullptr if read() didn't create it.
    [[nodiscard]] static const AlertImage *from(const AlertIcon *icon);

    explicit AlertImage(QImage image) : image_(std::move(image)) {}
    [[nodiscard]] const QImage &image() const noexcept { return image_; }

private:
    QImage image_;
};

} // namespace velmar
