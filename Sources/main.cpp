#include <Admission/LaunchOptions.h>
#include <AppDelegate/AppDelegate.h>
#include <AppDelegate/OpenedWindow.h>
#include <Base/ProcessEnd.h>
#include <Base/Services.h>
#include <Base/VelmarLogDestinations.h>
#include <Desktop/DesktopAlertPresenter.h>
#include <Desktop/DesktopApplication.h>
#include <Desktop/DesktopPasteboard.h>
#include <Desktop/DesktopSoundPlayer.h>
#include <Desktop/DesktopUserNotifications.h>
#include <Desktop/Display.h>
#include <Desktop/SessionBus.h>
#include <Dispatch/UncaughtHandler.h>
#include <System/SystemIdentityAuthority.h>
#include <System/SystemRunningApplications.h>
#include <Variables/ContentManager.h>
#include <logger/Logger.h>

#include <fmt/core.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

using namespace velmar;

namespace {

/// The services of the application.
class ApplicationServices {
public:
    ApplicationServices(DesktopApplication &application, const IdentityAuthority &authority)
        : sounds_(application.mainQueue(), DesktopSoundPlayer::placesOfProcess()),
          runningApplications_(application.mainQueue(), application.timers(),
                               [&authority] { return ProcessWatch::placesOfProcess(authority); }),
          openedWindow_(bundle_, application.mainMenu(), application.appearance()),
          bundle_{.mainQueue = application.mainQueue(),
                  .timers = application.timers(),
                  .alerts = alerts_,
                  .pasteboard = pasteboard_,
                  .sounds = sounds_,
                  .notifications = notifications_,
                  .windows = openedWindow_,
                  .runningApplications = runningApplications_,
                  .variables = ContentManager::shared()} {}
    ApplicationServices(const ApplicationServices &) = delete;
    ApplicationServices &operator=(const ApplicationServices &) = delete;

    [[nodiscard]] const Services &bundle() const noexcept { return bundle_; }
    [[nodiscard]] OpenedWindow &openedWindow() noexcept { return openedWindow_; }

private:
    DesktopAlertPresenter alerts_;
    DesktopPasteboard pasteboard_;
    DesktopSoundPlayer sounds_;
    DesktopUserNotifications notifications_;
    SystemRunningApplications runningApplications_;
    OpenedWindow openedWindow_;
    Services bundle_;
};

int runLoop(DesktopApplication &application, AppDelegate &delegate) {
    try {
        return application.run(delegate);
    } catch (...) {
        Logger::error([exception = std::current_exception()] { return textOf(exception); });
        return EXIT_FAILURE;
    }
}

void settleOrExit(int status) {
    if (!settleBeforeExit()) {
        std::_Exit(status);
    }
}

int run(int argumentCount, char **arguments, LaunchOptions options) {
    const std::optional<std::string> busProblem = leaveSilentSessionBus();
    const auto &authority = SystemIdentityAuthority::shared();
    installVelmarLogDestinations(authority);
    setUncaughtHandler([](std::string_view label, std::exception_ptr exception) {
        Logger::error([&] { return fmt::format("Uncaught error in {}: {}", label, textOf(exception)); });
    });
    if (busProblem) {
        Logger::error(*busProblem);
    }
    try {
        std::error_code ignored;
        const std::string executable = std::filesystem::read_symlink("/proc/self/exe", ignored).string();
        DesktopApplication application(argumentCount, arguments);
        ApplicationServices services(application, authority);
        AppDelegate delegate(application, services.bundle(), authority,
                             {.options = std::move(options), .executable = executable});
        services.openedWindow().setDidClose([&delegate] { delegate.openedWindowDidClose(); });
        const int status = runLoop(application, delegate);
        // Before the destructors: functions on queues may still use these objects.
        settleOrExit(status);
        return status;
    } catch (...) {
        Logger::error([exception = std::current_exception()] { return textOf(exception); });
        return EXIT_FAILURE;
    }
}

int startAndRun(int argumentCount, char **arguments) {
    try {
        const std::vector<std::string> texts(arguments + 1, arguments + std::max(1, argumentCount));
        LaunchOptions options = LaunchOptions::parse(texts);
        if (const auto problem = displayProblem(texts)) {
            fmt::print(stderr, "{}\n", *problem);
            return EXIT_FAILURE;
        }
        return run(argumentCount, arguments, std::move(options));
    } catch (...) {
        const auto exception = std::current_exception();
        fmt::print(stderr, "{}\n", textOf(exception));
        return EXIT_FAILURE;
    }
}

} // namespace

int main(int argumentCount, char **arguments) {
    const int status = startAndRun(argumentCount, arguments);
    settleOrExit(status);
    return status;
}
