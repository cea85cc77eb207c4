#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>
#include <Termination/AppTerminationManager.h>

#include <memory>

namespace velmar {

class MainMenu;

/// Has the Quit entry of the menu ask whether the application may quit, and gives it a shortcut that nobody
/// presses by accident if the configuration wants that.
class ApplicationTerminationAppDelegateService final : public AppDelegateService {
public:
    explicit ApplicationTerminationAppDelegateService(
        MainMenu &mainMenu, std::shared_ptr<AppTerminationManagerProtocol> appTerminationManager =
                                AppTerminationManager::shared());

    /// A menu without a Quit entry, the last one of its first submenu, is left as it is.
    void applicationDidFinishLaunching() override;

private:
    Config<AppTerminationSection> _appTermination{
        [](const Configuration &c) -> decltype(auto) { return c._appTermination(); }};
    MainMenu &mainMenu_;
    std::shared_ptr<AppTerminationManagerProtocol> appTerminationManager_;
};

} // namespace velmar
