#pragma once

#include <functional>
#include <memory>

namespace velmar {

/// Detects a place for status items on the desktop. A panel may start late in a login, so the place may
/// appear within three seconds; one that disappears has five seconds to return. Never blocks. Main thread
/// only.
class StatusItemPlace {
public:
    /// Calls `tell` with true when the place appears, and finally with false if it never appears or
    /// disappears for good. Calls come from the event loop, never after destruction.
    explicit StatusItemPlace(std::function<void(bool isThere)> tell);
    ~StatusItemPlace();
    StatusItemPlace(const StatusItemPlace &) = delete;
    StatusItemPlace &operator=(const StatusItemPlace &) = delete;

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace velmar
