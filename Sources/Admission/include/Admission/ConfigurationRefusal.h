#pragma once

#include <exception>
#include <functional>
#include <string>

namespace velmar {

/// Ends the process after a refused configuration.
struct ConfigurationRefusal {
    /// Shows a modal critical alert with one button and returns once the button is pressed. Runs an event
    /// loop, so it must not be called during the construction of AppManager.
    std::function<void(const std::string &message, const std::string &button)> alert;
    /// Ends the process immediately with a status, without the application's termination. Must not return.
    std::function<void(int status)> exit;

    /// Logs the error thrown by the constructor of AppManager, shows the alert, stops the queues, flushes the
    /// log (see settleBeforeExit()) and ends the process with status 0. Main thread.
    [[noreturn]] void exitBecauseOf(const std::exception &error) const;
};

} // namespace velmar
