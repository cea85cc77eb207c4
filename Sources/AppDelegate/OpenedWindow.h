#pragma once

#include <Actions/SlideWindowPresenter.h>

#include <Desktop/Screens.h>
#include <Dispatch/MainQueue.h>
#include <Foundation/NotificationCenter.h>

#include <functional>
#include <memory>

namespace velmar {

class DesktopAppearance;
class MainMenu;
class Window;

/// The window that the action OpenWindow opens, above the application's own, with the shortcuts of its menus
/// and called like its slide. What its slide demands of the user holds nobody on the application's slides.
class OpenedWindow final : public SlideWindowPresenter {
public:
    /// The references must outlive it.
    struct Surroundings {
        MainMenu &mainMenu;
        MainQueue &mainQueue;
        const DesktopAppearance &appearance;
        std::function<Screens()> screens;
        /// Called when the window has been closed by an action.
        std::function<void()> didClose;
    };

    explicit OpenedWindow(Surroundings surroundings);
    ~OpenedWindow() override;

    void open(std::shared_ptr<const ActionItems::OpenWindow> item) override;
    void close() override;

private:
    /// True if there was one.
    bool dismiss();

    Surroundings surroundings_;
    NotificationCenter center_; // Of the window's slide alone.
    std::unique_ptr<Window> window_;
};

} // namespace velmar
