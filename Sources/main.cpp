#include <AppDelegate/AppDelegate.h>
#include <Desktop/Alert.h>
#include <Desktop/DesktopApplication.h>
#include <Desktop/Display.h>
#include <Dispatch/UncaughtHandler.h>
#include <Extensions/VelmarLogDestinations.h>
#include <Managers/LaunchOptions.h>
#include <System/SystemIdentityAuthority.h>
#include <logger/Logger.h>

#include <fmt/core.h>

#include <cstdlib>
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
    std::error_code ignored;
    const std::string executable = std::filesystem::read_symlink("/proc/self/exe", ignored).string();
    DesktopApplication application(argumentCount, arguments);
    DesktopAlertPresenter alerts;
    AppDelegate delegate({.application = application,
                          .alerts = alerts,
                          .identityAuthority = authority,
                          .options = std::move(options),
                          .executable = executable});
    try {
        return application.run(delegate);
    } catch (const std::exception &error) {
        Logger::error(std::string(error.what()));
        return EXIT_FAILURE;
    }
}

} // namespace

int main(int argumentCount, char **arguments) {
    try {
        const std::vector<std::string> texts(arguments + 1, arguments + std::max(1, argumentCount));
        LaunchOptions options = LaunchOptions::parse(texts);
        if (const auto problem = displayProblem(texts)) {
            fmt::print(stderr, "{}\n", *problem);
            return EXIT_FAILURE;
        }
        const int status = run(argumentCount, arguments, std::move(options));
        Logger::flush();
        return status;
    } catch (const std::exception &error) {
        fmt::print(stderr, "{}\n", error.what());
        return EXIT_FAILURE;
    }
}
