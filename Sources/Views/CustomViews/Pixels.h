#pragma once

#include <Configuration/SizeItem.h>

#include <QSize>

#include <algorithm>
#include <cmath>

namespace velmar {

/// Converts a configured length in points to pixels, limited to 0...16384.
[[nodiscard]] inline int pixels(double points) {
    return static_cast<int>(std::lround(std::clamp(points, 0.0, 16384.0)));
}

/// Converts the size of a window to pixels, at least 1 in each dimension.
[[nodiscard]] inline QSize pixels(const SizeItem &size) {
    return {std::max(1, pixels(size._width())), std::max(1, pixels(size._height()))};
}

} // namespace velmar
