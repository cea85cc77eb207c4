#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>

namespace velmar {

class MainMenu;

/// Gives the Quit entry of the menu a shortcut that nobody presses by accident if the configuration wants
/// that.
class ApplicationTerminationAppDelegateService final : public AppDelegateService {
public:
    explicit ApplicationTerminationAppDelegateService(MainMenu &mainMenu) : mainMenu_(mainMenu) {}

    void applicationDidFinishLaunching() override;

private:
    /// Replaces the shortcut of the Quit entry, the last one of the first submenu. A menu without it stays as
    /// it is.
    void disableQuitShortcut();

    Config<AppTerminationSection> _appTermination{
        [](const Configuration &c) -> decltype(auto) { return c._appTermination(); }};
    MainMenu &mainMenu_;
};

} // namespace velmar
