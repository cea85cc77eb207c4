#pragma once

#include <cstdint>
#include <string_view>

namespace velmar {

/// Requests to the system that end the session or the computer's work.
struct TerminationEventSender {
    enum class Event : std::uint8_t { sleep, shutdown, logout, restart };

    /// The event's verb as messages print it, such as "restart".
    [[nodiscard]] static std::string_view verb(Event event) noexcept;
};

} // namespace velmar
