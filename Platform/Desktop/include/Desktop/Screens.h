#pragma once

#include <optional>
#include <vector>

namespace velmar {

/// A rectangle of the desktop in points, y growing downwards from the top of the first screen.
struct ScreenFrame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ScreenFrame &) const = default;
};

/// The screens of this moment.
struct Screens {
    std::vector<ScreenFrame> frames;
    std::optional<ScreenFrame> main; ///< The desktop's primary screen.

    /// Main thread.
    [[nodiscard]] static Screens current();
};

} // namespace velmar
