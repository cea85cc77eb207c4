#pragma once

#include <Views/Appearance/Color.h>

#include <QColor>

namespace velmar {

[[nodiscard]] inline QColor qColor(const Color &color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

/// How well two opaque colours can be told apart, from 1 (not at all) to 21 (black on white).
[[nodiscard]] double contrast(const QColor &left, const QColor &right);

} // namespace velmar
