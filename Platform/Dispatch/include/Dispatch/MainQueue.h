#pragma once

#include <functional>
#include <memory>

namespace velmar {

/// The queue of the main thread. Functions run there one at a time, in the order of posting.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs the function later on the main thread. Never blocks and never runs it before returning.
    /// Thread-safe.
    virtual void async(std::function<void()> function) = 0;

    /// True on the main thread.
    [[nodiscard]] virtual bool isCurrent() const = 0;
};

} // namespace velmar
