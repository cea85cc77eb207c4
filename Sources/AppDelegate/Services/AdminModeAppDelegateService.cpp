#include <AppDelegate/Services/AdminModeAppDelegateService.h>

#include <AppDelegate/ApplicationMenu.h>

namespace velmar {

void AdminModeAppDelegateService::applicationDidFinishLaunching() {
    if (!_isAdminModeOn()) {
        mainMenu_.removeItems(ApplicationMenu::administratorTag);
    }
}

} // namespace velmar
