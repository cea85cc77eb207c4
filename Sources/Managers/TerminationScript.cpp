#include <Managers/TerminationScript.h>

#include <Configuration/Configuration.h>
#include <Dispatch/DispatchQueue.h>
#include <Extensions/LoggerExtensions.h>
#include <Foundation/FileManager.h>
#include <command-runner/CommandLineService.h>

#include <fmt/format.h>

#include <chrono>
#include <exception>
#include <future>
#include <memory>
#include <thread>
#include <utility>

namespace velmar {

namespace {

// Until a script that is not waited for has begun.
constexpr std::chrono::microseconds launchDelay(200'000);

} // namespace

TerminationScript::TerminationScript(Config<AppTerminationSection> appTermination, Run runInUserContext)
    : _appTermination(std::move(appTermination)), runInUserContext_(std::move(runInUserContext)) {}

Config<AppTerminationSection> TerminationScript::configuredTermination() {
    return Config<AppTerminationSection>(
        [](const Configuration &c) -> decltype(auto) { return c._appTermination(); });
}

TerminationScript::Run TerminationScript::runDetached() {
    return [](const std::string &path, std::function<void(Result<std::string>)> completion) {
        CommandLineService::executeDetachedScript(path, {}, std::move(completion));
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
    auto over = std::make_shared<std::promise<void>>();
    const std::future<void> hasEnded =
        over->get_future(); // Also without an end, if nobody is left to tell it.
    DispatchQueue("TerminationScript").async([this, path, over] {
        launchTerminationScript(path, [over] { over->set_value(); });
    });
    over.reset();
    if (_appTermination.wrappedValue()->_waitForExecutionScriptExecution()) {
        LoggerExtensions::info(LogSubject::termination, "Waiting for script to complete...");
        hasEnded.wait();
    } else {
        std::this_thread::sleep_for(launchDelay);
    }
}

void TerminationScript::launchTerminationScript(const std::string &path, std::function<void()> ended) const {
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
    runInUserContext_(path, completion);
}

} // namespace velmar
