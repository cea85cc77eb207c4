#include <Dispatch/MainThreadQueue.h>

#include <utility>

namespace velmar {

void MainThreadQueue::async(std::function<void()> function) {
    const std::lock_guard lock(mutex_);
    functions_.push_back(std::move(function));
    posted_.notify_all();
}

std::size_t MainThreadQueue::runUntilEmpty() {
    std::size_t count = 0;
    while (runNext(std::chrono::steady_clock::now()))
        ++count;
    return count;
}

bool MainThreadQueue::runUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeout) {
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (!runNext(deadline))
            return condition();
    }
    return true;
}

bool MainThreadQueue::runNext(std::chrono::steady_clock::time_point deadline) {
    std::function<void()> next;
    {
        std::unique_lock lock(mutex_);
        if (!posted_.wait_until(lock, deadline, [this] { return !functions_.empty(); }))
            return false;
        next = std::move(functions_.front());
        functions_.pop_front();
    }
    next();
    return true;
}

} // namespace velmar
