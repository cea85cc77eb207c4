#pragma once

#include <Configuration/AppTerminationSection.h>
#include <Foundation/Result.h>
#include <Settings/Config.h>

#include <chrono>
#include <functional>
#include <future>
#include <string>

namespace velmar {

/// Runs the script that the configuration names for the end of the application.
class TerminationScript {
public:
    /// Runs a script without arguments. `launched` is called when its process is there, then the completion
    /// once, both on some thread and never on the main one: that may wait for them. One that can't be run has
    /// the completion only.
    using Run = std::function<void(const std::string &path, std::function<void()> launched,
                                   std::function<void(Result<std::string> output)> completion)>;

    /// `isEndDemanded` tells, on the main thread, whether somebody wants the process to end without waiting.
    explicit TerminationScript(std::function<bool()> isEndDemanded,
                               Config<AppTerminationSection> appTermination = configuredTermination(),
                               Run runInUserContext = runDetached());

    /// What stands between the decision to end and the end; main thread. Begins the script for the state of
    /// the installation, if there is one, and waits for its end, if the configuration says so, without limit
    /// unless the end is demanded meanwhile; otherwise only until it has begun. A script that is not waited
    /// for goes on by itself. Never throws.
    void runBeforeTermination(bool isInstallationComplete) const noexcept;

private:
    [[nodiscard]] static Config<AppTerminationSection> configuredTermination();
    [[nodiscard]] static Run runDetached();

    void run(const std::string &path) const;
    /// `ended` is called when the script has ended or could not be run.
    void launchTerminationScript(const std::string &path, std::function<void()> launched,
                                 std::function<void()> ended) const;
    /// For that long at most. False if it was not ready by then and nobody demanded the end.
    [[nodiscard]] bool wait(const std::future<void> &event, std::chrono::seconds patience) const;

    std::function<bool()> isEndDemanded_;
    Config<AppTerminationSection> _appTermination;
    Run runInUserContext_;
};

} // namespace velmar
