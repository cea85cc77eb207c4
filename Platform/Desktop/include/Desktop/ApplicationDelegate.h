#pragma once

namespace velmar {

/// Who is told what happens to the application. Everything is called on the main thread, from the event loop.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    /// The first event of the loop, before any window exists.
    virtual void applicationWillFinishLaunching() = 0;
    virtual void applicationDidFinishLaunching() = 0;
    /// The keyboard comes to one of the application's windows, or leaves them all.
    virtual void applicationWillBecomeActive() = 0;
    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationWillResignActive() = 0;
    virtual void applicationDidResignActive() = 0;
    /// The last event; the loop ends after it.
    virtual void applicationWillTerminate() = 0;

    /// False keeps the application running.
    virtual bool applicationShouldTerminate() = 0;
    virtual bool applicationShouldTerminateAfterLastWindowClosed() = 0;
};

} // namespace velmar
