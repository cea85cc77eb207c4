#include "DispatchPool.h"

#include <Dispatch/SignalsBlocked.h>

#include <algorithm>
#include <cstdlib>
#include <thread>
#include <utility>

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
        // For a process that calls `exit` without `shutdown`. Runs before the destructors of static objects
        // made before the pool, and after those of objects made later; see DispatchQueue::shutdown.
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
    // Counted first, so that `shutdown` either waits for this function or prevents it from running.
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
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    threads_.stop();
    // A function that calls `shutdown` must not wait for itself.
    const std::size_t own = isPoolThread ? 1 : 0;
    std::unique_lock lock(mutex_);
    if (!ended_.wait_until(lock, deadline, [&] { return running_ <= own; })) {
        return false;
    }
    if (own != 0) {
        return true;
    }
    if (!std::exchange(isJoining_, true)) {
        startJoining();
    }
    return ended_.wait_until(lock, deadline, [&] { return hasJoined_; });
}

// On its own thread, because joining has no timeout: a pool thread may still be destroying a function that
// never ran.
void DispatchPool::startJoining() {
    const SignalsBlocked blocked;
    std::thread([this] {
        threads_.join();
        const std::lock_guard lock(mutex_);
        hasJoined_ = true;
        ended_.notify_all();
    }).detach();
}

} // namespace velmar
