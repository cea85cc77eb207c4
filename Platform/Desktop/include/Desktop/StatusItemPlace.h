#pragma once

#include <functional>
#include <memory>

namespace velmar {

/// Finds out whether the desktop has a place for status items. A panel may begin after the programs of a
/// login, so that one is waited for, three seconds at most. Main thread.
class StatusItemPlace {
public:
    /// Tells once: from within the constructor if the place is there, from the event loop otherwise; never
    /// after this is destroyed.
    explicit StatusItemPlace(std::function<void(bool isThere)> found);
    ~StatusItemPlace();
    StatusItemPlace(const StatusItemPlace &) = delete;
    StatusItemPlace &operator=(const StatusItemPlace &) = delete;

private:
    class Wait;
    std::unique_ptr<Wait> wait_;
};

} // namespace velmar
