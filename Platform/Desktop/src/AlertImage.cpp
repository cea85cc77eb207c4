#include "AlertImage.h"

#include "ImageFile.h"

#include <optional>
#include <utility>

namespace velmar {

namespace {

// In pixels: sufficient for the icon's 64 points on the densest screens.
constexpr QSize largest(256, 256);

} // namespace

std::shared_ptr<const AlertImage> AlertImage::read(const std::string &path) {
    std::optional<ImageFile> file = ImageFile::read(path, largest);
    return file ? std::make_shared<const AlertImage>(std::move(file->image)) : nullptr;
}

const AlertImage *AlertImage::from(const AlertIcon *icon) {
    return dynamic_cast<const AlertImage *>(icon);
}

} // namespace velmar
