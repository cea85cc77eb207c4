#include <AppDelegate/Services/MenuBarIcon.h>

#include <fmt/core.h>
#include <logger/Logger.h>

#include <string_view>

namespace velmar::MenuBarIcon {

namespace {

constexpr int smallestSide = 15;
constexpr int largestHeight = 30;
constexpr int largestWidth = 25; // The fixed text of the warning says 30.

std::string warning(std::string_view side, int pixels) {
    return fmt::format("Custom menu bar icon has a {0} of {1} pixels which is not valid and can lead to "
                       "unexpected graphics behaviours.\nValid {0}: 15...30 pixels and a relevant width for "
                       "this height.",
                       side, pixels);
}

std::optional<StatusItemImage> ownImage() {
    std::optional<StatusItemImage> image = StatusItemImage::read(":/MenuBarIcon.svg");
    if (!image) {
        Logger::error("Default menu bar icon cannot be found or used as an image");
    }
    return image;
}

} // namespace

std::vector<std::string> warningsFor(int width, int height) {
    std::vector<std::string> warnings;
    if (height < smallestSide || height > largestHeight) {
        warnings.push_back(warning("height", height));
    }
    if (width < smallestSide || width > largestWidth) {
        warnings.push_back(warning("width", width));
    }
    return warnings;
}

std::optional<StatusItemImage> load(const std::optional<std::string> &path) {
    if (!path) {
        return ownImage();
    }
    std::optional<StatusItemImage> image = StatusItemImage::read(*path);
    if (!image) {
        Logger::error([&] {
            return fmt::format("MenuBarIconPath. The file at '{}' cannot be used as an image", *path);
        });
        return std::nullopt;
    }
    for (const std::string &text : warningsFor(image->width(), image->height())) {
        Logger::warning(text);
    }
    return image;
}

} // namespace velmar::MenuBarIcon
