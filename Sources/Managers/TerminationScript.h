#pragma once

#include <Configuration/AppTerminationSection.h>
#include <Foundation/Result.h>
#include <Managers/Config.h>

#include <functional>
#include <string>

namespace velmar {

/// Runs the script that the configuration names for the end of the application.
class TerminationScript {
public:
    /// Runs a script without arguments. The completion is called once on some thread, never on the main one:
    /// that may wait for it.
    using Run = std::function<void(const std::string &path,
                                   std::function<void(Result<std::string> output)> completion)>;

    explicit TerminationScript(Config<AppTerminationSection> appTermination = configuredTermination(),
                               Run runInUserContext = runDetached());

    /// What stands between the decision to end and the end; main thread. Begins the script for the state of
    /// the installation, if there is one, and waits for its end without limit if the configuration says so;
    /// otherwise only until it has surely begun. Never throws.
    void runBeforeTermination(bool isInstallationComplete) const noexcept;

private:
    [[nodiscard]] static Config<AppTerminationSection> configuredTermination();
    [[nodiscard]] static Run runDetached();

    void run(const std::string &path) const;
    /// `ended` is called when the script has ended or could not be run.
    void launchTerminationScript(const std::string &path, std::function<void()> ended) const;

    Config<AppTerminationSection> _appTermination;
    Run runInUserContext_;
};

} // namespace velmar
