#pragma once

#include <functional>
#include <memory>

namespace velmar {

/// Finds out whether the desktop has a place for status items. A panel may begin after the programs of a
/// login, so that one is waited for, three seconds at most; one that goes is given five seconds to come back.
/// No answer of the desktop is waited for. Main thread.
class StatusItemPlace {
public:
    /// Tells that the place is there, if it comes in time; and in the end, if it has gone or never came, that
    /// it isn't. From the event loop, not from within the constructor; never after this is destroyed.
    explicit StatusItemPlace(std::function<void(bool isThere)> tell);
    ~StatusItemPlace();
    StatusItemPlace(const StatusItemPlace &) = delete;
    StatusItemPlace &operator=(const StatusItemPlace &) = delete;

private:
    class Watch;
    std::unique_ptr<Watch> watch_;
};

} // namespace velmar
