#pragma once

#include <algorithm>
#include <cmath>

namespace velmar {

/// The pixels of a length of the configuration, in points. More than any screen is as much as any screen.
[[nodiscard]] inline int pixels(double points) {
    return static_cast<int>(std::lround(std::clamp(points, 0.0, 16384.0)));
}

} // namespace velmar
