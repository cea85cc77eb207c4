#pragma once

namespace velmar {

/// Observer of the events of the application's life cycle. Main thread. Errors are logged; an exception ends
/// the process.
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
