#pragma once

#include <Dispatch/DispatchQueue.h>
#include <Dispatch/MainQueue.h>

#include <functional>
#include <utility>
#include <variant>

namespace velmar {

/// A main queue or a dispatch queue, for code that only posts. Both convert to it. A main queue is referred
/// to and must outlive the value; of a dispatch queue it is another handle. Any thread.
class AnyQueue {
public:
    AnyQueue(MainQueue &queue) : queue_(&queue) {}
    AnyQueue(DispatchQueue queue) : queue_(std::move(queue)) {}

    /// Runs the function later, by the contract of the queue.
    void async(std::function<void()> function) const;

    /// True on the main thread if this is a main queue. Always false for a dispatch queue, which has no
    /// thread of its own.
    [[nodiscard]] bool isCurrent() const;

private:
    std::variant<MainQueue *, DispatchQueue> queue_;
};

} // namespace velmar
