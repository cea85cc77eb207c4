#pragma once

#include <Views/Appearance/Color.h>

#include <QColor>

namespace velmar {

/// Converts a colour.
[[nodiscard]] inline QColor qColor(const Color &color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

/// Returns the contrast ratio of two opaque colours, from 1 (equal) to 21 (black on white).
[[nodiscard]] double contrast(const QColor &left, const QColor &right);

} // namespace velmar
