#pragma once

#include <exception>
#include <functional>
#include <string>

namespace velmar {

/// What a refused configuration does to the process.
struct ConfigurationRefusal {
    /// Shows a modal alert of the critical style with one button, and returns when it was pressed. It runs
    /// its own loop, so it is never called while the AppManager is being made.
    std::function<void(const std::string &message, const std::string &button)> alert;
    /// Ends the process with a status, at once and without the application's termination. Must not return.
    std::function<void(int status)> exit;

    /// Logs what the making of the AppManager threw, shows the alert, settles queues and log
    /// (`settleBeforeExit`) and ends the process with status 0. Main thread.
    [[noreturn]] void exitBecauseOf(const std::exception &error) const;
};

} // namespace velmar
