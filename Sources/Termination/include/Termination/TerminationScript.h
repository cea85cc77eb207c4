#pragma once

#include <Configuration/AppTerminationSection.h>
#include <Foundation/Result.h>
#include <Settings/Config.h>

#include <chrono>
#include <functional>
#include <future>
#include <string>

namespace velmar {

/// Runs the configured script before the application ends.
class TerminationScript {
public:
    /// Runs a script without arguments. Calls `launched` once the process exists, then `completion` once. If
    /// the script can't be run, only `completion` is called. Neither is called on the main thread, which may
    /// wait for them.
    using Run = std::function<void(const std::string &path, std::function<void()> launched,
                                   std::function<void(Result<std::string> output)> completion)>;

    /// `isEndDemanded` is polled on the main thread; it returns true if the process must end without waiting.
    explicit TerminationScript(std::function<bool()> isEndDemanded,
                               Config<AppTerminationSection> appTermination = configuredTermination(),
                               Run runInUserContext = runDetached());

    /// Starts the script for the state of the installation, if one is configured. Blocks until the script has
    /// ended or, if the configuration doesn't require that, until it has started, for 5 seconds at most. The
    /// wait stops when `isEndDemanded` returns true. The script may outlive the process. Main thread. Never
    /// throws.
    void runBeforeTermination(bool isInstallationComplete) const noexcept;

private:
    [[nodiscard]] static Config<AppTerminationSection> configuredTermination();
    [[nodiscard]] static Run runDetached();

    void run(const std::string &path) const;
    /// Starts the script. `ended` is called once the script has ended or failed to start.
    void launchTerminationScript(const std::string &path, std::function<void()> launched,
                                 std::function<void()> ended) const;
    /// Waits for the event, for `patience` at most. Returns false on a timeout, true if the event is ready or
    /// the end is demanded.
    [[nodiscard]] bool wait(const std::future<void> &event, std::chrono::seconds patience) const;

    std::function<bool()> isEndDemanded_;
    Config<AppTerminationSection> _appTermination;
    Run runInUserContext_;
};

} // namespace velmar
