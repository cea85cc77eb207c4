#pragma once

#include <exception>
#include <functional>
#include <string_view>
#include <utility>

namespace velmar {

/// Is told of an exception that left a function of a queue, a timer or another entry point, on the thread
/// where that happened. `label` names the queue or entry point.
using UncaughtHandler = std::function<void(std::string_view label, std::exception_ptr exception)>;

/// Replaces the handler of the process; an empty one restores the first, which writes a line to standard
/// error.
void setUncaughtHandler(UncaughtHandler handler);

/// Hands an exception to the handler. What the handler throws is dropped.
void reportUncaught(std::string_view label, std::exception_ptr exception) noexcept;

/// Runs the function; what it throws is reported. For every place where another thread, a loop or a library
/// of the system calls into the program.
template <class Function>
void runReportingUncaught(std::string_view label, Function &&function) noexcept {
    try {
        std::forward<Function>(function)();
    } catch (...) {
        reportUncaught(label, std::current_exception());
    }
}

/// The text of an exception for a message: what() of what derives from std::exception.
[[nodiscard]] std::string_view textOf(const std::exception_ptr &exception);

} // namespace velmar
