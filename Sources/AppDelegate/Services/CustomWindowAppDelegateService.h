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

/// Shows what the configuration's mode asks for, a window, a window over covered screens, or a status item
/// with its popover, and keeps it until the application ends: the one service that lives over the events.
class CustomWindowAppDelegateService final : public AppDelegateService {
public:
    /// The desktop, and what is to be done when something appears on it. The references must outlive the
    /// service.
    struct Desktop {
        MainMenu &mainMenu;
        const DesktopAppearance &appearance;
        /// Called after each first paint of a window.
        std::function<void()> didPaint;
        /// Called once, when something is on the screen, for what would hold that up.
        std::function<void()> didPresent;
        std::function<Screens()> screens = &Screens::current;
    };

    CustomWindowAppDelegateService(const Services &services, VelmarViewController::Application application,
                                   Desktop desktop);
    ~CustomWindowAppDelegateService() override;

    /// Throws VelmarError::InternalError where there is no screen. The status item comes when there is a
    /// place for it; without one the window of the mode "Simple" stands in for it, and the session moves into
    /// that window when the place goes for good.
    void applicationDidFinishLaunching() override;

    /// The action of the status item: its popover comes, or goes.
    void showApplicationViewController();

    /// Reads the configuration again and shows what it has, if something of it is shown already.
    void reloadInterface(bool byResetingVariables);

    /// Lets go of the screens and of the keyboard, for good: the application is about to end.
    void uncoverScreens();

    /// Null without a window of its own: before it is made, and where there is a status item.
    [[nodiscard]] Window *window() const noexcept { return window_.get(); }

private:
    void configureMenuBar();
    void standInForStatusItem();
    void buildWindow();
    /// Makes the session's views in a window, which has none yet.
    void buildController(Window &window);
    void setTitle();
    /// Gives the window the size and the place that the present screens allow.
    void arrange(const WindowPresentation &presentation);
    void place();
    void screensChanged();

    Config<WindowSection> _windowConfig = LaunchWindow::section();
    // The popover is arranged anew each time it is shown.
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
