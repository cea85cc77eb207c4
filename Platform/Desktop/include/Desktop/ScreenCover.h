#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

class Window;

/// Keeps a window in front of the user: covers every screen by a backdrop behind the window, gives the window
/// the keyboard while no dialog is open, and lowers windows that other applications raise above it, as far as
/// the desktop allows. See docs/decisions/0050-covering-windows.md. Main thread only.
class ScreenCover {
public:
    /// Backdrop of the main screen. Other screens show a blurred picture of their former content.
    enum class Backing { blurred, plain };

    /// Called with the name, possibly empty, of an application that is left alone until it pauses for a
    /// second: its window is raised or takes the keyboard too often, or its password dialog cannot be raised.
    using GiveUp = std::function<void(const std::string &application, bool asksForPassword)>;

    /// `window` must have the rank `front` and outlive the cover.
    ScreenCover(Window &window, Backing onMainScreen, GiveUp giveUp);
    ~ScreenCover();
    ScreenCover(const ScreenCover &) = delete;
    ScreenCover &operator=(const ScreenCover &) = delete;

    /// Covers all current screens and removes the backdrops of missing ones. Must be called before the window
    /// is first shown and whenever the screens change.
    void coverScreens();

    /// Raises the window above the backdrops and gives it the keyboard.
    void bringToFront();

private:
    class Backdrops;
    std::unique_ptr<Backdrops> backdrops_;
};

} // namespace velmar
