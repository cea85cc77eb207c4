#include <AppDelegate/Services/ApplicationTerminationAppDelegateService.h>

#include <Base/LoggerExtensions.h>
#include <Desktop/MainMenu.h>

#include <utility>
#include <vector>

namespace velmar {

void ApplicationTerminationAppDelegateService::applicationDidFinishLaunching() {
    if (!_appTermination.wrappedValue()->_isQuitShortcutEnabled()) {
        disableQuitShortcut();
    }
}

void ApplicationTerminationAppDelegateService::disableQuitShortcut() {
    std::vector<MenuItem> items = mainMenu_.items();
    if (items.empty() || items.front().submenu.empty()) {
        return;
    }
    items.front().submenu.back().shortcut =
        KeyShortcut{.key = 'Q', .command = true, .control = true, .option = true};
    mainMenu_.setItems(std::move(items));
    LoggerExtensions::info(LogSubject::termination, "The quit shortcut has been replaced by ⌃⌥⌘Q");
}

} // namespace velmar
