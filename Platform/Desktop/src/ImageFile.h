#pragma once

#include <QImage>
#include <QSize>

#include <optional>
#include <string>

namespace velmar {

/// A picture from a file, reduced to the size needed.
struct ImageFile {
    QImage image;
    QSize size; ///< Size of the original, in pixels or in user units of a vector drawing.

    /// Reads a picture in any format of the toolkit. Returns std::nullopt if there is none at the path. A
    /// larger picture is scaled down to `largest`; a vector drawing is always scaled to it.
    [[nodiscard]] static std::optional<ImageFile> read(const std::string &path, QSize largest);
};

} // namespace velmar
