#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>

namespace velmar {

class MainMenu;

/// Removes the administrators' entries from the menus unless the configuration enables the admin mode.
class AdminModeAppDelegateService final : public AppDelegateService {
public:
    explicit AdminModeAppDelegateService(MainMenu &mainMenu) : mainMenu_(mainMenu) {}
    AdminModeAppDelegateService(MainMenu &mainMenu, bool isAdminModeOn) : mainMenu_(mainMenu) {
        _isAdminModeOn.setOverrideValue(isAdminModeOn);
    }

    void applicationDidFinishLaunching() override;

private:
    Config<bool> _isAdminModeOn{
        [](const Configuration &c) -> decltype(auto) { return c._admin()._isAdminModeOn(); }};
    MainMenu &mainMenu_;
};

} // namespace velmar
