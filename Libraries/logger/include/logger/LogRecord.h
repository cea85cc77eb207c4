#pragma once

#include <chrono>
#include <string>

#include <logger/LogLevel.h>
#include <logger/SourceLocation.h>

namespace velmar {

/// One message on its way to one destination. Texts are passed on as they are, whatever their bytes.
struct LogRecord {
    LogLevel level = LogLevel::verbose;
    /// When the message was logged, not when it is written.
    std::chrono::system_clock::time_point time;
    SourceLocation where;
    std::string message;
    /// Empty for none.
    std::string context;
    /// Name of the thread that logged; empty unless the destination prints it.
    std::string thread;
};

} // namespace velmar
