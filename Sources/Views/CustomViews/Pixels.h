#pragma once

#include <Configuration/SizeItem.h>

#include <QSize>

#include <algorithm>
#include <cmath>

namespace velmar {

/// The pixels of a length of the configuration, in points. More than any screen is as much as any screen.
[[nodiscard]] inline int pixels(double points) {
    return static_cast<int>(std::lround(std::clamp(points, 0.0, 16384.0)));
}

/// The pixels of a window's size, at least one each way.
[[nodiscard]] inline QSize pixels(const SizeItem &size) {
    return {std::max(1, pixels(size._width())), std::max(1, pixels(size._height()))};
}

} // namespace velmar
