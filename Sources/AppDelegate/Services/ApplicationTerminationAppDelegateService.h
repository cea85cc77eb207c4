#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>

namespace velmar {

class MainMenu;

/// Replaces the shortcut of the Quit entry by one unlikely to be pressed by accident, if configured.
class ApplicationTerminationAppDelegateService final : public AppDelegateService {
public:
    explicit ApplicationTerminationAppDelegateService(MainMenu &mainMenu) : mainMenu_(mainMenu) {}

    void applicationDidFinishLaunching() override;

private:
    /// Replaces the shortcut of the Quit entry, the last entry of the first submenu. Does nothing without
    /// that entry.
    void disableQuitShortcut();

    Config<AppTerminationSection> _appTermination{
        [](const Configuration &c) -> decltype(auto) { return c._appTermination(); }};
    MainMenu &mainMenu_;
};

} // namespace velmar
