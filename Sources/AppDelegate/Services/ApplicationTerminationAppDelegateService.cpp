#include <AppDelegate/Services/ApplicationTerminationAppDelegateService.h>

#include <Base/LoggerExtensions.h>
#include <Desktop/MainMenu.h>

#include <utility>
#include <vector>

namespace velmar {

namespace {

void disableQuitShortcut(MenuItem &quitItem) {
    quitItem.shortcut = KeyShortcut{.key = 'Q', .command = true, .control = true, .option = true};
    LoggerExtensions::info(LogSubject::termination, "The quit shortcut has been replaced by ⌃⌥⌘Q");
}

} // namespace

ApplicationTerminationAppDelegateService::ApplicationTerminationAppDelegateService(
    MainMenu &mainMenu, std::shared_ptr<AppTerminationManagerProtocol> appTerminationManager)
    : mainMenu_(mainMenu), appTerminationManager_(std::move(appTerminationManager)) {}

void ApplicationTerminationAppDelegateService::applicationDidFinishLaunching() {
    std::vector<MenuItem> items = mainMenu_.items();
    if (items.empty() || items.front().submenu.empty()) {
        return;
    }
    MenuItem &quitItem = items.front().submenu.back();
    quitItem.action = [manager = appTerminationManager_] { manager->tryToQuitApplication(); };
    if (!_appTermination.wrappedValue()->_isQuitShortcutEnabled()) {
        disableQuitShortcut(quitItem);
    }
    mainMenu_.setItems(std::move(items));
}

} // namespace velmar
