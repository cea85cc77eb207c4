#pragma once

#include <Configuration/WindowPositionItem.h>
#include <Desktop/Screens.h>

#include <cstdint>
#include <optional>

namespace velmar {
class Window;
}

namespace velmar::WindowPlacement {

/// The screen of that index, or the main one where there is no such screen. Throws VelmarError::InternalError
/// if there is no screen at all.
[[nodiscard]] ScreenFrame chooseScreen(const Screens &screens, std::optional<std::int64_t> index);

struct Origin {
    int x = 0;
    int y = 0;
    bool operator==(const Origin &) const = default;
};

/// The left upper corner of a window of that size, its frame included, on the screen.
[[nodiscard]] Origin originOf(const WindowPositionItem &position, int width, int height,
                              const ScreenFrame &screen);

/// Puts a window there, by the size that its frame has at this moment.
void place(Window &window, const WindowPositionItem &position, const ScreenFrame &screen);

} // namespace velmar::WindowPlacement
