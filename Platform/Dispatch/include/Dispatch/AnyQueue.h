#pragma once

#include <Dispatch/DispatchQueue.h>
#include <Dispatch/MainQueue.h>

#include <functional>
#include <utility>
#include <variant>

namespace velmar {

/// A main queue or a dispatch queue, for code that only posts. Both convert to it. A main queue is not owned
/// and must outlive the value; a dispatch queue is held by a handle. Thread-safe.
class AnyQueue {
public:
    AnyQueue(MainQueue &queue) : queue_(&queue) {}
    AnyQueue(DispatchQueue queue) : queue_(std::move(queue)) {}

    /// Runs the function later, under the contract of the queue.
    void async(std::function<void()> function) const;

    /// Returns true on the main thread if this is a main queue. Always false for a dispatch queue, which has
    /// no thread of its own.
    [[nodiscard]] bool isCurrent() const;

private:
    std::variant<MainQueue *, DispatchQueue> queue_;
};

} // namespace velmar
