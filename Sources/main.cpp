#include <AppDelegate/AppDelegate.h>
#include <Desktop/DesktopAlertPresenter.h>
#include <Desktop/DesktopApplication.h>
#include <Desktop/Display.h>
#include <Dispatch/UncaughtHandler.h>
#include <Extensions/VelmarLogDestinations.h>
#include <Managers/LaunchOptions.h>
#include <Managers/ProcessEnd.h>
#include <System/SystemIdentityAuthority.h>
#include <logger/Logger.h>

#include <fmt/core.h>

#include <algorithm>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

using namespace velmar;

namespace {

int run(int argumentCount, char **arguments, LaunchOptions options) {
    const auto &authority = SystemIdentityAuthority::shared();
    installVelmarLogDestinations(authority);
    setUncaughtHandler([](std::string_view label, std::exception_ptr exception) {
        Logger::error([&] { return fmt::format("Uncaught error in {}: {}", label, textOf(exception)); });
    });
    try {
        std::error_code ignored;
        const std::string executable = std::filesystem::read_symlink("/proc/self/exe", ignored).string();
        DesktopApplication application(argumentCount, arguments);
        DesktopAlertPresenter alerts;
        AppDelegate delegate({.application = application,
                              .alerts = alerts,
                              .identityAuthority = authority,
                              .options = std::move(options),
                              .executable = executable});
        return application.run(delegate);
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
    if (!settleBeforeExit()) {
        std::_Exit(status);
    }
    return status;
}
