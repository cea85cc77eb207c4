#pragma once

#include <cstdint>
#include <string_view>

class QWindow;
struct xcb_connection_t;

namespace velmar {

/// What the user may do with a window by the window manager's means.
struct WindowFunctions {
    bool resize = true;
    bool move = true;
    bool close = true;
};

/// Null where the window system is none of X11's.
[[nodiscard]] xcb_connection_t *connectionOfWindowSystem();

/// The number that the window system gives to a name; 0 where it is none of X11's.
[[nodiscard]] std::uint32_t atomOfWindowSystem(std::string_view name);

/// Whether what is behind a window shines through where the window is transparent.
[[nodiscard]] bool windowsAreComposited();

/// Who has a selection of the X server, by its name; 0 for nobody.
[[nodiscard]] std::uint32_t ownerOfSelection(std::string_view name);

/// Tells the window manager what it may offer for a window with a title bar; minimising and maximising never.
/// Window managers are free not to follow. Before the window is shown; does nothing where there is no X
/// server.
void setWindowManagerFunctions(QWindow &window, WindowFunctions functions);

/// Shows the window on every workspace. Before it is shown; does nothing where there is no X server.
void setOnEveryWorkspace(QWindow &window);

} // namespace velmar
