#include <AppDelegate/ServiceableAppDelegate.h>

namespace velmar {

void ServiceableAppDelegate::forEachService(void (AppDelegateService::*event)()) {
    for (const auto &service : services()) {
        (service.get()->*event)();
    }
}

void ServiceableAppDelegate::applicationWillFinishLaunching() {
    forEachService(&AppDelegateService::applicationWillFinishLaunching);
}
void ServiceableAppDelegate::applicationDidFinishLaunching() {
    forEachService(&AppDelegateService::applicationDidFinishLaunching);
}
void ServiceableAppDelegate::applicationWillBecomeActive() {
    forEachService(&AppDelegateService::applicationWillBecomeActive);
}
void ServiceableAppDelegate::applicationDidBecomeActive() {
    forEachService(&AppDelegateService::applicationDidBecomeActive);
}
void ServiceableAppDelegate::applicationWillResignActive() {
    forEachService(&AppDelegateService::applicationWillResignActive);
}
void ServiceableAppDelegate::applicationDidResignActive() {
    forEachService(&AppDelegateService::applicationDidResignActive);
}
void ServiceableAppDelegate::applicationWillTerminate() {
    forEachService(&AppDelegateService::applicationWillTerminate);
}

} // namespace velmar
