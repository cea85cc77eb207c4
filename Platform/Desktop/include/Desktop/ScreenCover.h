#pragma once

#include <functional>
#include <memory>
#include <string>

namespace velmar {

class Window;

/// Keeps a window before the eyes of the user: every screen is covered by a backdrop behind it, the keyboard
/// is the window's unless a dialog is up, and what comes above is put below again, as far as the desktop
/// allows: docs/decisions/0050-covering-windows.md. Main thread.
class ScreenCover {
public:
    /// What covers the main screen; the others show a blurred picture of what was there.
    enum class Backing { blurred, plain };

    /// Told the name, maybe an empty one, of an application that is left alone for as long as it goes on: its
    /// window comes above or takes the keyboard too often, or is a dialog for a password that stays below.
    using GiveUp = std::function<void(const std::string &application, bool asksForPassword)>;

    /// The window, one of the rank `front`, must outlive the cover.
    ScreenCover(Window &window, Backing onMainScreen, GiveUp giveUp);
    ~ScreenCover();
    ScreenCover(const ScreenCover &) = delete;
    ScreenCover &operator=(const ScreenCover &) = delete;

    /// Covers the screens that there are now, and uncovers what is no screen any more. To be called before
    /// the window is shown for the first time and whenever the screens have changed.
    void coverScreens();

    /// Puts the window above the backdrops and gives it the keyboard.
    void bringToFront();

private:
    class Backdrops;
    std::unique_ptr<Backdrops> backdrops_;
};

} // namespace velmar
