#include <Termination/TerminationScript.h>

#include <Base/LoggerExtensions.h>
#include <Configuration/Configuration.h>
#include <Dispatch/DispatchQueue.h>
#include <Foundation/FileManager.h>
#include <command-runner/CommandLineService.h>

#include <fmt/format.h>

#include <chrono>
#include <exception>
#include <memory>
#include <thread>
#include <utility>

namespace velmar {

namespace {

// Minimum and maximum wait for the start of a script whose end is not awaited.
constexpr std::chrono::microseconds launchDelay(200'000);
constexpr std::chrono::seconds launchPatience(5);
constexpr std::chrono::hours withoutLimit(24 * 365);

constexpr std::chrono::milliseconds restBetweenLooks(100);

} // namespace

TerminationScript::TerminationScript(std::function<bool()> isEndDemanded,
                                     Config<AppTerminationSection> appTermination, Run runInUserContext)
    : isEndDemanded_(std::move(isEndDemanded)),
      _appTermination(std::move(appTermination)),
      runInUserContext_(std::move(runInUserContext)) {}

Config<AppTerminationSection> TerminationScript::configuredTermination() {
    return Config<AppTerminationSection>(
        [](const Configuration &c) -> decltype(auto) { return c._appTermination(); });
}

TerminationScript::Run TerminationScript::runDetached() {
    return [](const std::string &path, std::function<void()> launched,
              std::function<void(Result<std::string>)> completion) {
        CommandLineService::executeDetachedScript(path, {}, std::move(launched), std::move(completion));
    };
}

void TerminationScript::runBeforeTermination(bool isInstallationComplete) const noexcept {
    try {
        const auto section = _appTermination.wrappedValue();
        const auto path = isInstallationComplete ? section->_completeInstallationScriptPath()
                                                 : section->_incompleteInstallationScriptPath();
        if (!path) {
            return;
        }
        if (path->empty()) {
            LoggerExtensions::warning(LogSubject::termination, "Empty termination script path");
        } else if (!FileManager::defaultManager().fileExists(*path)) {
            LoggerExtensions::warning(LogSubject::termination, [&] {
                return fmt::format("No termination script at path '{}'", *path);
            });
        } else {
            run(*path);
        }
    } catch (const std::exception &error) {
        LoggerExtensions::error(LogSubject::termination, error.what());
    }
}

void TerminationScript::run(const std::string &path) const {
    // Destroying an unset promise makes its future ready, so a lost callback can't block the wait.
    auto launch = std::make_shared<std::promise<void>>();
    auto end = std::make_shared<std::promise<void>>();
    const std::future<void> launched = launch->get_future();
    const std::future<void> ended = end->get_future();
    DispatchQueue("TerminationScript")
        .async([this, path, launch = std::move(launch), end = std::move(end)]() mutable {
            launchTerminationScript(
                path, [launch = std::move(launch)] { launch->set_value(); },
                [end = std::move(end)] { end->set_value(); });
        });
    if (_appTermination.wrappedValue()->_waitForExecutionScriptExecution()) {
        LoggerExtensions::info(LogSubject::termination, "Waiting for script to complete...");
        static_cast<void>(wait(ended, withoutLimit));
    } else {
        std::this_thread::sleep_for(launchDelay);
        if (!wait(launched, launchPatience)) {
            LoggerExtensions::warning(LogSubject::termination, [&] {
                return fmt::format("The script at '{}' has not begun after {} seconds", path,
                                   launchPatience.count());
            });
        }
    }
}

bool TerminationScript::wait(const std::future<void> &event, std::chrono::seconds patience) const {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (event.wait_for(restBetweenLooks) != std::future_status::ready) {
        if (isEndDemanded_()) {
            LoggerExtensions::warning(
                LogSubject::termination,
                "A signal demands the end: the script goes on and is no longer waited for");
            return true;
        }
        if (std::chrono::steady_clock::now() >= end) {
            return false;
        }
    }
    return true;
}

void TerminationScript::launchTerminationScript(const std::string &path, std::function<void()> launched,
                                                std::function<void()> ended) const {
    const auto section = _appTermination.wrappedValue();
    const bool executeAsRoot = section->_executeAsRoot();
    const std::string suffix = executeAsRoot ? " with root privileges" : "";
    LoggerExtensions::info(LogSubject::termination,
                           [&] { return fmt::format("Launched script at '{}'{}", path, suffix); });
    const auto completion = [path, suffix, ended = std::move(ended)](const Result<std::string> &output) {
        if (output) {
            LoggerExtensions::info(LogSubject::termination, [&] {
                return fmt::format("Executed script at '{}'{} with following output:\n{}", path, suffix,
                                   *output);
            });
        } else {
            LoggerExtensions::error(LogSubject::termination, [&] {
                return fmt::format("Error while executing script at '{}'{}: {}", path, suffix,
                                   output.error()->errorDescription());
            });
        }
        ended();
    };
    if (executeAsRoot) {
        completion(failure(
            VelmarError(VelmarError::InternalError{"Scripts cannot be run with root privileges yet"})));
        return;
    }
    runInUserContext_(path, std::move(launched), completion);
}

} // namespace velmar
