#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Managers/Config.h>
#include <Views/VelmarViewController.h>

#include <Desktop/Screens.h>

#include <functional>
#include <memory>

namespace velmar {

class MainMenu;
class Window;

/// Makes the window that the configuration asks for, and keeps it until the application ends: the one service
/// that lives over the events.
class CustomWindowAppDelegateService final : public AppDelegateService {
public:
    struct Surroundings {
        MainMenu &mainMenu;
        std::function<Screens()> screens;
        /// Called after the window's first paint, for what would hold it up.
        std::function<void()> didPaint;
        VelmarViewController::Surroundings view;
    };

    explicit CustomWindowAppDelegateService(Surroundings surroundings);
    ~CustomWindowAppDelegateService() override;

    /// Throws VelmarError::InternalError where there is no screen.
    void applicationDidFinishLaunching() override;

    /// Null before the window is made.
    [[nodiscard]] VelmarViewController *controller() const noexcept { return controller_; }
    [[nodiscard]] Window *window() const noexcept { return window_.get(); }

private:
    void place(const WindowPositionItem &position, const ScreenFrame &screen);

    Config<WindowSection> _windowConfig{[](const Configuration &c) -> decltype(auto) { return c._window(); }};
    Surroundings surroundings_;
    std::unique_ptr<Window> window_;
    VelmarViewController *controller_ = nullptr; // Owned by the window.
};

} // namespace velmar
