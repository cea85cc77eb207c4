#pragma once

#include <functional>
#include <memory>

namespace velmar {

/// The queue of the main thread. Functions run there one after the other, in the order of posting.
class MainQueue {
public:
    virtual ~MainQueue() = default;

    /// Runs the function later on the main thread. Any thread; never blocks, never runs it at once.
    virtual void async(std::function<void()> function) = 0;

    /// True on the main thread.
    [[nodiscard]] virtual bool isCurrent() const = 0;
};

} // namespace velmar
