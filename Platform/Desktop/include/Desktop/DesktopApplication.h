#pragma once

#include <Desktop/MainMenu.h>

#include <Dispatch/MainQueue.h>
#include <Dispatch/Timer.h>

#include <memory>
#include <thread>

namespace velmar {

class ApplicationDelegate;
class DesktopAppearance;

/// The process as a desktop application: its event loop and its per-process objects. `main` creates one
/// instance, after displayProblem() returned no problem. Main thread only, except the functions of
/// mainQueue().
class DesktopApplication {
public:
    /// Removes the toolkit's own options from the arguments, which must outlive the application. SIGTERM and
    /// SIGINT now act like terminate(). Exceptions of event handlers are reported as uncaught; the loop
    /// continues.
    DesktopApplication(int &argumentCount, char **arguments);
    ~DesktopApplication();
    DesktopApplication(const DesktopApplication &) = delete;
    DesktopApplication &operator=(const DesktopApplication &) = delete;

    /// Runs the loop until the application terminates and returns the exit status. The delegate receives the
    /// launch events first. Rethrows an exception of a launch event, after which the loop has ended.
    int run(ApplicationDelegate &delegate);

    /// Ends the loop, including nested loops of open alerts, unless the delegate refuses. Exceptions of the
    /// delegate are reported as uncaught and don't stop the termination. The delegate is neither asked nor
    /// notified until `applicationWillFinishLaunching` has returned.
    void terminate();

    /// True once SIGTERM or SIGINT arrived while the main thread is blocked; poll this from code that blocks
    /// it during termination.
    [[nodiscard]] bool isTerminationDemanded() const;

    [[nodiscard]] MainMenu &mainMenu() noexcept { return mainMenu_; }
    [[nodiscard]] MainQueue &mainQueue() noexcept { return *mainQueue_; }
    [[nodiscard]] TimerScheduler &timers() noexcept { return *timers_; }
    [[nodiscard]] DesktopAppearance &appearance() noexcept { return *appearance_; }

private:
    class Loop;
    std::jthread fontLoader_; // Runs in parallel to the constructor of Loop, which may throw.
    MainMenu mainMenu_;
    std::unique_ptr<DesktopAppearance> appearance_; // Outlives loop_, whose widgets' style uses it.
    std::unique_ptr<Loop> loop_;
    std::unique_ptr<MainQueue> mainQueue_;
    std::unique_ptr<TimerScheduler> timers_;
};

} // namespace velmar
