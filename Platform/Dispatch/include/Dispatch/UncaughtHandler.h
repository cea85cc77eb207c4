#pragma once

#include <exception>
#include <functional>
#include <string_view>
#include <utility>

namespace velmar {

/// Receives an exception that left a function of a queue, a timer or another entry point. Called on the
/// thread of that function. `label` names the queue or entry point.
using UncaughtHandler = std::function<void(std::string_view label, std::exception_ptr exception)>;

/// Replaces the handler of the process. An empty handler restores the default, which writes a line to
/// standard error. Thread-safe.
void setUncaughtHandler(UncaughtHandler handler);

/// Passes an exception to the handler. Exceptions of the handler itself are dropped. Thread-safe.
void reportUncaught(std::string_view label, std::exception_ptr exception) noexcept;

/// Runs the function and reports its exceptions. Use it wherever another thread, a loop or a system library
/// calls into the program.
template <class Function>
void runReportingUncaught(std::string_view label, Function &&function) noexcept {
    try {
        std::forward<Function>(function)();
    } catch (...) {
        reportUncaught(label, std::current_exception());
    }
}

/// Returns the text of an exception: what() if it derives from std::exception, otherwise a fixed text.
[[nodiscard]] std::string_view textOf(const std::exception_ptr &exception);

} // namespace velmar
