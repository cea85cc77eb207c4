#pragma once

#include <cstdint>
#include <memory>
#include <source_location>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace velmar {

class BaseDestination;

/// The levels in ascending order.
enum class LogLevel : std::uint8_t { verbose, debug, info, warning, error };

/// The process-wide logger. A message goes to every destination that logs its level; it is given as a function and
/// made once for each of them, on the caller's thread at the time of the call:
///
///     Logger::info([&] { return fmt::format("Found configuration file at {}", path); });
///     Logger::error([] { return "An error occurred while retrieving the configuration file"; }, context);
///
/// A plain text may stand in place of the function where nothing is computed. Any thread; never throws: what a
/// message's function throws loses that message alone.
class Logger {
public:
    /// An optional value behind the message ($X); empty for none.
    using Context = std::string;

    template <class Message>
    static void verbose(Message &&message, const Context &context = {},
                        std::source_location where = std::source_location::current()) {
        log(LogLevel::verbose, message, context, where);
    }
    // debug, info, warning, error likewise.
};

} // namespace velmar
