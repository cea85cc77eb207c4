#pragma once

#include <functional>
#include <string>
#include <vector>

#include <logger/LogLevel.h>
#include <logger/SourceLocation.h>

namespace velmar {

/// Decides beside the level whether a message is logged, before it is made. Called on any thread.
using LogFilter = std::function<bool(LogLevel level, const SourceLocation &where)>;

/// What a destination is made with.
struct DestinationSettings {
    /// In the language of LogFormat.
    std::string format = "$DHH:mm:ss$d $L > $M $X";
    /// Whether lines are written on the destination's own serial queue; otherwise before the call returns.
    bool asynchronously = true;
    LogLevel minLevel = LogLevel::verbose;
    /// What $L prints.
    LevelTexts levelString{"🖨", "⚙️", "ℹ️", "⚠️", "🛑"};
    /// What $C prints behind `escape` where the destination is coloured; $c prints `reset`.
    LevelTexts levelColor{"251m", "35m", "38m", "178m", "197m"};
    std::string reset = "\x1b[0m";
    std::string escape = "\x1b[38;5;";
    /// All must agree.
    std::vector<LogFilter> filters = {};
    /// Whether lines that cannot be written are reported on standard error.
    bool debugPrint = false;
};

} // namespace velmar
