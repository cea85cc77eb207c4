#include "DispatchPool.h"

#include <Dispatch/SignalsBlocked.h>

#include <algorithm>
#include <cstdlib>
#include <thread>

namespace velmar {

namespace {

constexpr unsigned mostThreads = 8;
constexpr std::chrono::seconds exitTimeout(2);

std::atomic<DispatchPool *> startedPool{nullptr};
std::atomic<bool> isEnded{false};
thread_local bool isPoolThread = false;

} // namespace

DispatchPool::DispatchPool() : threads_(std::clamp(std::thread::hardware_concurrency(), 2U, mostThreads)) {}

DispatchPool &DispatchPool::shared() {
    static DispatchPool &pool = []() -> DispatchPool & {
        const SignalsBlocked blocked;
        auto *made = new DispatchPool;
        startedPool = made;
        // For a process that leaves by `exit` alone: no function runs beside the destructors of what it may
        // use.
        std::atexit([] { static_cast<void>(shutdown(exitTimeout)); });
        return *made;
    }();
    return pool;
}

bool DispatchPool::isShutDown() noexcept {
    return isEnded;
}

bool DispatchPool::isOnPoolThread() noexcept {
    return isPoolThread;
}

bool DispatchPool::begin() noexcept {
    isPoolThread = true;
    // Counted first, so that `shutdown` either sees this one running or keeps it from beginning.
    ++running_;
    return !isEnded;
}

void DispatchPool::end() noexcept {
    --running_;
    if (isEnded) {
        const std::lock_guard lock(mutex_);
        ended_.notify_all();
    }
}

bool DispatchPool::shutdown(std::chrono::milliseconds timeout) {
    isEnded = true;
    DispatchPool *pool = startedPool;
    return pool == nullptr || pool->stop(timeout);
}

bool DispatchPool::stop(std::chrono::milliseconds timeout) {
    threads_.stop();
    // A function that ends the process would wait for itself.
    const std::size_t own = isPoolThread ? 1 : 0;
    {
        std::unique_lock lock(mutex_);
        if (!ended_.wait_for(lock, timeout, [&] { return running_ <= own; }))
            return false;
    }
    if (own == 0)
        std::call_once(joined_, [this] { threads_.join(); });
    return true;
}

} // namespace velmar
