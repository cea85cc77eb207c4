#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace velmar {

/// Returns true if the session announces a bus. The toolkit's library would otherwise start its own bus,
/// which has no services. Thread-safe.
[[nodiscard]] bool hasSessionBus();

/// Returns true if the session bus accepts connections but doesn't answer within `patience`. A client such as
/// the toolkit would block on it forever. Blocks for at most `patience`. Thread-safe.
[[nodiscard]] bool isSessionBusSilent(std::chrono::milliseconds patience);

/// Disables a silent session bus in this process's environment, but not for launched programs. Returns a
/// sentence about it, or std::nullopt if the bus is not silent. Must be called before the first thread
/// starts.
[[nodiscard]] std::optional<std::string> leaveSilentSessionBus();

} // namespace velmar
