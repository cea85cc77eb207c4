#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace velmar {

/// Whether the session says where its message bus is. Where it doesn't, the library would start a bus of its
/// own, on which nobody listens. Any thread.
[[nodiscard]] bool hasSessionBus();

/// Whether the session's bus takes connections and says nothing for that long: whoever connects to it, as the
/// toolkit does more than once, waits without end. Waits no longer than that. Any thread.
[[nodiscard]] bool isSessionBusSilent(std::chrono::milliseconds patience);

/// Has this process do without a session bus that is silent, by its environment, though not the programs that
/// it launches; tells so in a sentence. Before the first thread.
[[nodiscard]] std::optional<std::string> leaveSilentSessionBus();

} // namespace velmar
