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

/// The window that the action OpenWindow opens, above the application's own, with the shortcuts of its menus
/// and called like its slide. What its slide demands of the user holds nobody on the application's slides.
class OpenedWindow final : public SlideWindowPresenter {
public:
    /// The references must outlive it. It may be made before the services, of which it is one.
    OpenedWindow(const Services &services, MainMenu &mainMenu, const DesktopAppearance &appearance,
                 std::function<Screens()> screens = &Screens::current);
    ~OpenedWindow() override;

    /// Sets the function that is called when an action has closed the window; by default none is.
    void setDidClose(std::function<void()> didClose) { didClose_ = std::move(didClose); }

    void open(std::shared_ptr<const ActionItems::OpenWindow> item) override;
    void close() override;

private:
    /// True if there was one.
    bool dismiss();

    const Services &services_;
    MainMenu &mainMenu_;
    const DesktopAppearance &appearance_;
    std::function<Screens()> screens_;
    std::function<void()> didClose_ = [] {};
    NotificationCenter center_; // Of the window's slide alone.
    std::unique_ptr<Window> window_;
};

} // namespace velmar
