#pragma once

#include <Configuration/WindowPositionItem.h>
#include <Desktop/Screens.h>

#include <cstdint>
#include <optional>

namespace velmar {
class Window;
}

namespace velmar::WindowPlacement {

/// Returns the screen with the index, otherwise the main screen. Throws VelmarError::InternalError if there
/// is neither.
[[nodiscard]] ScreenFrame chooseScreen(const Screens &screens, std::optional<std::int64_t> index);

/// Position of a window's top left corner, in points.
struct Origin {
    int x = 0;
    int y = 0;
    bool operator==(const Origin &) const = default;
};

/// Returns the origin on the screen of a window whose size includes its frame.
[[nodiscard]] Origin originOf(const WindowPositionItem &position, int width, int height,
                              const ScreenFrame &screen);

/// Moves a window to its position on the screen, based on the current size of its frame.
void place(Window &window, const WindowPositionItem &position, const ScreenFrame &screen);

} // namespace velmar::WindowPlacement
