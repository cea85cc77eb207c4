#pragma once

namespace velmar {

/// One duty of the application at the events of its life. Main thread. No operation throws but for what ends
/// the process; a service reports by logging.
class AppDelegateService {
public:
    virtual ~AppDelegateService() = default;
    virtual void applicationWillFinishLaunching() {}
    virtual void applicationDidFinishLaunching() {}
    virtual void applicationWillBecomeActive() {}
    virtual void applicationDidBecomeActive() {}
    virtual void applicationWillResignActive() {}
    virtual void applicationDidResignActive() {}
    virtual void applicationWillTerminate() {}
};

} // namespace velmar
