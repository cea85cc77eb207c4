#pragma once

class QWindow;

namespace velmar {

/// What the user may do with a window by the window manager's means.
struct WindowFunctions {
    bool resize = true;
    bool move = true;
    bool close = true;
};

/// Tells the window manager what it may offer for a window with a title bar; minimising and maximising never.
/// Window managers are free not to follow. Before the window is shown; does nothing where there is no X
/// server.
void setWindowManagerFunctions(QWindow &window, WindowFunctions functions);

} // namespace velmar
