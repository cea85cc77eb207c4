#pragma once

#include <functional>
#include <string>
#include <vector>

#include <logger/LogLevel.h>
#include <logger/SourceLocation.h>

namespace velmar {

/// A filter in addition to the level. Called before the message is created, on any thread.
using LogFilter = std::function<bool(LogLevel level, const SourceLocation &where)>;

/// Settings of a destination.
struct DestinationSettings {
    /// Format of a line; see LogFormat.
    std::string format = "$DHH:mm:ss$d $L > $M $X";
    /// True to write on the destination's own serial queue, false to write before the call returns.
    bool asynchronously = true;
    LogLevel minLevel = LogLevel::verbose;
    /// Output of $L.
    LevelTexts levelString{"🖨", "⚙️", "ℹ️", "⚠️", "🛑"};
    /// Output of $C after `escape` in a coloured destination; $c prints `reset`.
    LevelTexts levelColor{"251m", "35m", "38m", "178m", "197m"};
    std::string reset = "\x1b[0m";
    std::string escape = "\x1b[38;5;";
    /// A message is logged if all filters return true.
    std::vector<LogFilter> filters = {};
    /// Reports lost lines on standard error.
    bool debugPrint = false;
};

} // namespace velmar
