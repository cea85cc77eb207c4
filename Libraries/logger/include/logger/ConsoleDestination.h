#pragma once

#include <span>
#include <string_view>

#include <unistd.h>

#include <logger/BaseDestination.h>

namespace velmar {

/// Prints lines to standard output. A closed pipe loses them without SIGPIPE; a slow reader blocks only the
/// destination's queue.
class ConsoleDestination : public BaseDestination {
public:
    /// `descriptor` is not owned.
    explicit ConsoleDestination(DestinationSettings settings = {}, bool useTerminalColors = false,
                                int descriptor = STDOUT_FILENO);

    void write(std::span<const LogRecord> records) override;

private:
    const bool useTerminalColors_;
    const int descriptor_;
};

} // namespace velmar
