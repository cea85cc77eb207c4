#pragma once

#include <Desktop/MainMenu.h>

#include <Dispatch/MainQueue.h>
#include <Dispatch/Timer.h>

#include <memory>
#include <thread>

namespace velmar {

class ApplicationDelegate;
class DesktopAppearance;

/// The process as a program of the desktop: its event loop, and what exists once beside it. One is made, in
/// `main`, after `displayProblem()` found nothing. Main thread, but for what `mainQueue()` takes.
class DesktopApplication {
public:
    /// Takes the toolkit's own options out of the arguments, which must outlive the application. SIGTERM and
    /// SIGINT are from now on the same as `terminate()`. An exception that leaves the handler of an event is
    /// reported as uncaught, and the loop goes on.
    DesktopApplication(int &argumentCount, char **arguments);
    ~DesktopApplication();
    DesktopApplication(const DesktopApplication &) = delete;
    DesktopApplication &operator=(const DesktopApplication &) = delete;

    /// Runs the loop until the application has terminated, and gives the exit status. The delegate is told
    /// the launching events first. Throws what left one of them: the launch failed, and the loop is over.
    int run(ApplicationDelegate &delegate);

    /// Ends the loop unless the delegate objects; what the delegate throws is reported as uncaught and holds
    /// nothing up. Loops of alerts that are open end with it. While `applicationWillFinishLaunching` runs or
    /// is to come, the delegate is neither asked nor told.
    void terminate();

    /// Whether SIGTERM or SIGINT has come while the main thread doesn't get to it: for who holds it up in the
    /// termination.
    [[nodiscard]] bool isTerminationDemanded() const;

    [[nodiscard]] MainMenu &mainMenu() noexcept { return mainMenu_; }
    [[nodiscard]] MainQueue &mainQueue() noexcept { return *mainQueue_; }
    [[nodiscard]] TimerScheduler &timers() noexcept { return *timers_; }
    [[nodiscard]] DesktopAppearance &appearance() noexcept { return *appearance_; }

private:
    class Loop;
    std::jthread fontLoader_; // Beside the making of the loop, which may throw.
    MainMenu mainMenu_;
    std::unique_ptr<DesktopAppearance> appearance_; // The style of the loop's widgets uses it to the end.
    std::unique_ptr<Loop> loop_;
    std::unique_ptr<MainQueue> mainQueue_;
    std::unique_ptr<TimerScheduler> timers_;
};

} // namespace velmar
