#pragma once

namespace velmar {

/// Receives the events of the application's life. All functions are called on the main thread, from the event
/// loop.
class ApplicationDelegate {
public:
    virtual ~ApplicationDelegate() = default;

    /// Called first, before any window exists.
    virtual void applicationWillFinishLaunching() = 0;
    virtual void applicationDidFinishLaunching() = 0;
    /// Called when one of the application's windows gets the keyboard, or when all of them lose it.
    virtual void applicationWillBecomeActive() = 0;
    virtual void applicationDidBecomeActive() = 0;
    virtual void applicationWillResignActive() = 0;
    virtual void applicationDidResignActive() = 0;
    /// Called last; the loop ends afterwards.
    virtual void applicationWillTerminate() = 0;

    /// Returns false to keep the application running.
    virtual bool applicationShouldTerminate() = 0;
    virtual bool applicationShouldTerminateAfterLastWindowClosed() = 0;
};

} // namespace velmar
