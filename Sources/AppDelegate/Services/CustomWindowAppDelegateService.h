#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Core/LaunchWindow.h>
#include <Settings/Config.h>
#include <Views/VelmarViewController.h>

#include <Desktop/Screens.h>

#include <QPointer>
#include <QTimer>

#include <functional>
#include <memory>

namespace velmar {

class MainMenu;
class Popover;
class ScreenCover;
class StatusItem;
class StatusItemPlace;
class Window;
struct WindowPresentation;

/// Shows a window, a window over covered screens, or a status item with a popover, depending on the
/// configured mode. Lives until the application ends.
class CustomWindowAppDelegateService final : public AppDelegateService {
public:
    /// The desktop and callbacks for first paints. The references must outlive the service.
    struct Desktop {
        MainMenu &mainMenu;
        const DesktopAppearance &appearance;
        /// Called after each first paint of a window.
        std::function<void()> didPaint;
        /// Called once after the first paint of the window or once the status item is shown. Put slow
        /// start-up work here.
        std::function<void()> didPresent;
        std::function<Screens()> screens = &Screens::current;
    };

    CustomWindowAppDelegateService(const Services &services, VelmarViewController::Application application,
                                   Desktop desktop);
    ~CustomWindowAppDelegateService() override;

    /// Shows the window or waits for a place for the status item. Without a place, a window as in the mode
    /// "Simple" is shown instead; if the place disappears permanently, the session moves to that window.
    /// Throws VelmarError::InternalError if there is no screen.
    void applicationDidFinishLaunching() override;

    /// Toggles the popover of the status item.
    void showApplicationViewController();

    /// Reloads the configuration and rebuilds the views if they exist.
    void reloadInterface(bool byResetingVariables);

    /// Uncovers the screens and releases the keyboard permanently. Called before the application ends.
    void uncoverScreens();

    /// Returns the window, nullptr before its creation and in the presence of a status item.
    [[nodiscard]] Window *window() const noexcept { return window_.get(); }

private:
    void configureMenuBar();
    void standInForStatusItem();
    void buildWindow();
    /// Creates the session's views in a window without content.
    void buildController(Window &window);
    void setTitle();
    /// Sets the size and the position of the window for the present screens.
    void arrange(const WindowPresentation &presentation);
    void place();
    void screensChanged();

    Config<WindowSection> _windowConfig = LaunchWindow::section();
    // Read from the present configuration: the popover is arranged each time it is shown.
    Config<SizeItem> _menuBarSize{
        [](const Configuration &c) -> decltype(auto) { return c._window()._menuBarSize(); }};
    Config<AdminSection> _admin{[](const Configuration &c) -> decltype(auto) { return c._admin(); }};
    const Services &services_;
    VelmarViewController::Application application_;
    Desktop desktop_;
    std::unique_ptr<Window> window_;
    std::unique_ptr<ScreenCover> cover_;
    std::unique_ptr<ScreensObserver> screensObserver_;
    std::unique_ptr<Popover> popover_;
    std::unique_ptr<StatusItemPlace> statusItemPlace_;
    std::unique_ptr<StatusItem> statusItem_;
    QTimer standInLater_;
    QPointer<VelmarViewController> controller_; // Owned by its window.
};

} // namespace velmar
