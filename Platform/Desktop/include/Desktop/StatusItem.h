#pragma once

#include <Desktop/Screens.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

class QImage;

namespace velmar {

/// The picture of a status item, as its file has it.
class StatusItemImage {
public:
    /// Nothing if the path is not that of a file with a picture.
    [[nodiscard]] static std::optional<StatusItemImage> read(const std::string &path);

    /// In pixels, or in what a drawing counts by.
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

/// A button among the status items of the desktop's panel. Its image is a template: only its shape counts,
/// and it has the colour of texts, light or dark. Main thread.
class StatusItem {
public:
    /// Where `StatusItemPlace` has found a place. The title is what assistive technologies and the pointer's
    /// hint tell.
    StatusItem(std::string title, std::function<void()> action);
    ~StatusItem();
    StatusItem(const StatusItem &) = delete;
    StatusItem &operator=(const StatusItem &) = delete;

    /// In proportion to the item's place. Without an image the item is empty, and can be clicked all the
    /// same.
    void setImage(StatusItemImage image);

    /// Puts the item into the panel.
    void show();

    /// Where the item is; where the pointer is, on desktops that don't tell.
    [[nodiscard]] ScreenFrame frame() const;

private:
    class Icon;
    std::unique_ptr<Icon> icon_;
};

} // namespace velmar
