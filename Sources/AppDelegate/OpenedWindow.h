#pragma once

#include <Actions/SlideWindowPresenter.h>

#include <Desktop/Screens.h>
#include <Foundation/NotificationCenter.h>

#include <functional>
#include <memory>
#include <utility>

namespace velmar {

class DesktopAppearance;
class MainMenu;
class Window;
struct Services;

/// The window opened by the action OpenWindow. It is above the application's window, has the menu shortcuts
/// and is titled like its slide. The validity of its slide does not affect the application's slides.
class OpenedWindow final : public SlideWindowPresenter {
public:
    /// The references must outlive this object. `services` may be constructed later, since it refers to this
    /// object.
    OpenedWindow(const Services &services, MainMenu &mainMenu, const DesktopAppearance &appearance,
                 std::function<Screens()> screens = &Screens::current);
    ~OpenedWindow() override;

    /// Sets the function called after an action has closed the window. Does nothing by default.
    void setDidClose(std::function<void()> didClose) { didClose_ = std::move(didClose); }

    void open(std::shared_ptr<const ActionItems::OpenWindow> item) override;
    void close() override;

private:
    /// Closes the window. Returns true if there was one.
    bool dismiss();

    const Services &services_;
    MainMenu &mainMenu_;
    const DesktopAppearance &appearance_;
    std::function<Screens()> screens_;
    std::function<void()> didClose_ = [] {};
    NotificationCenter center_; // Used by the window's slide only.
    std::unique_ptr<Window> window_;
};

} // namespace velmar
