#pragma once

#include <cstdint>
#include <string_view>

class QWindow;
struct xcb_connection_t;

namespace velmar {

/// Operations that the window manager offers to the user.
struct WindowFunctions {
    bool resize = true;
    bool move = true;
    bool close = true;
};

/// Returns nullptr if the window system is not X11. Not owned.
[[nodiscard]] xcb_connection_t *connectionOfWindowSystem();

/// Returns the X11 atom of a name; 0 if the window system is not X11.
[[nodiscard]] std::uint32_t atomOfWindowSystem(std::string_view name);

/// Returns true if transparent windows show the area behind them.
[[nodiscard]] bool windowsAreComposited();

/// Returns the owner of an X11 selection; 0 for none.
[[nodiscard]] std::uint32_t ownerOfSelection(std::string_view name);

/// Sets the operations that the window manager offers for a window with title bar. Minimising and maximising
/// are never offered. Window managers may ignore the hint. Must be called before the window is shown. Does
/// nothing without an X server.
void setWindowManagerFunctions(QWindow &window, WindowFunctions functions);

/// Shows the window on every workspace. Must be called before the window is shown. Does nothing without an X
/// server.
void setOnEveryWorkspace(QWindow &window);

} // namespace velmar
