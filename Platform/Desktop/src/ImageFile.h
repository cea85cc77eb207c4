#pragma once

#include <QImage>
#include <QSize>

#include <optional>
#include <string>

namespace velmar {

/// A picture from a file, no larger than it can be shown.
struct ImageFile {
    QImage image;
    QSize size; ///< That of the file's picture, in pixels or in what a drawing counts by.

    /// Nothing if the path is not that of a file with a picture, of whatever kind the toolkit reads. A larger
    /// picture is brought within the given size, and so is a smaller one if it is a drawing.
    [[nodiscard]] static std::optional<ImageFile> read(const std::string &path, QSize largest);
};

} // namespace velmar
