#pragma once

#include <chrono>
#include <string>

#include <logger/LogLevel.h>
#include <logger/SourceLocation.h>

namespace velmar {

/// One message for one destination. Texts may contain any bytes.
struct LogRecord {
    LogLevel level = LogLevel::verbose;
    /// Time of the log call.
    std::chrono::system_clock::time_point time;
    SourceLocation where;
    std::string message;
    /// Empty for none.
    std::string context;
    /// Name of the logging thread; empty unless the destination prints it.
    std::string thread;
};

} // namespace velmar
