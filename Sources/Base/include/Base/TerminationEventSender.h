#pragma once

#include <cstdint>
#include <string_view>

namespace velmar {

/// Requests to the system to suspend or end the session or the computer.
struct TerminationEventSender {
    enum class Event : std::uint8_t { sleep, shutdown, logout, restart };

    /// Returns the verb of an event for messages, such as "restart".
    [[nodiscard]] static std::string_view verb(Event event) noexcept;
};

} // namespace velmar
