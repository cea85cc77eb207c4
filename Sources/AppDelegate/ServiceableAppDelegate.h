#pragma once

#include <AppDelegate/AppDelegateService.h>

#include <Desktop/ApplicationDelegate.h>

#include <memory>
#include <vector>

namespace velmar {

/// A delegate that forwards each event to a list of services, in order.
class ServiceableAppDelegate : public ApplicationDelegate {
public:
    /// Returns the services. Called once for each event.
    [[nodiscard]] virtual std::vector<std::shared_ptr<AppDelegateService>> services() { return {}; }

    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    void applicationWillBecomeActive() override;
    void applicationDidBecomeActive() override;
    void applicationWillResignActive() override;
    void applicationDidResignActive() override;
    void applicationWillTerminate() override;

    bool applicationShouldTerminate() override { return true; }
    bool applicationShouldTerminateAfterLastWindowClosed() override { return true; }

private:
    void forEachService(void (AppDelegateService::*event)());
};

} // namespace velmar
