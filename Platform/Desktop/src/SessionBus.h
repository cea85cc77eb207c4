#pragma once

namespace velmar {

/// Whether the session says where its message bus is. Where it doesn't, the library would start a bus of its
/// own, on which nobody listens.
[[nodiscard]] bool hasSessionBus();

} // namespace velmar
