#pragma once

#include <span>
#include <string_view>

#include <unistd.h>

#include <logger/BaseDestination.h>

namespace velmar {

/// Prints the lines to the standard output. A reader that went away loses them without a signal, and one that
/// does not read holds up the destination's queue alone.
class ConsoleDestination : public BaseDestination {
public:
    /// The descriptor is not closed.
    explicit ConsoleDestination(DestinationSettings settings = {}, bool useTerminalColors = false,
                                int descriptor = STDOUT_FILENO);

    void write(std::span<const LogRecord> records) override;

private:
    const bool useTerminalColors_;
    const int descriptor_;
};

} // namespace velmar
