#pragma once

#include <Desktop/Screens.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QImage;

namespace velmar {

/// The picture of a status item, loaded from a file.
class StatusItemImage {
public:
    /// Returns std::nullopt if there is no readable picture at the path.
    [[nodiscard]] static std::optional<StatusItemImage> read(const std::string &path);

    /// Size in pixels, or in user units of a vector drawing.
    [[nodiscard]] int width() const noexcept { return width_; }
    [[nodiscard]] int height() const noexcept { return height_; }

    [[nodiscard]] const QImage &image() const noexcept { return *image_; }

private:
    StatusItemImage(std::shared_ptr<const QImage> image, int width, int height)
        : image_(std::move(image)), width_(width), height_(height) {}

    std::shared_ptr<const QImage> image_;
    int width_;
    int height_;
};

/// A status item in the desktop's panel. Its image is a template: only the shape counts, drawn in the colour
/// of text for a light or dark appearance. Main thread only.
class StatusItem {
public:
    /// Requires a place found by StatusItemPlace. The title is shown as tool tip and read by assistive
    /// technologies.
    StatusItem(std::string title, std::function<void()> action);
    ~StatusItem();
    StatusItem(const StatusItem &) = delete;
    StatusItem &operator=(const StatusItem &) = delete;

    /// Sets the image, scaled to the item. An item without image is blank but can be clicked.
    void setImage(StatusItemImage image);

    /// Adds the item to the panel.
    void show();

    /// Returns the item's rectangle, or the position of the pointer if the desktop doesn't report it.
    [[nodiscard]] ScreenFrame frame() const;

private:
    class Icon;
    std::unique_ptr<Icon> icon_;
};

} // namespace velmar
