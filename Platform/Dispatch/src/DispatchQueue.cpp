#include <Dispatch/DispatchQueue.h>

#include <Dispatch/UncaughtHandler.h>

#include "DispatchPool.h"

#include <asio/post.hpp>
#include <asio/strand.hpp>

#include <cstdint>
#include <optional>
#include <utility>

namespace velmar {

struct DispatchQueue::State {
    explicit State(std::string name) : label(std::move(name)) {}

    std::string label;
    bool isSerial = true;
    // Made at first use: a queue without posted functions starts no threads.
    std::once_flag strandMade;
    std::optional<asio::strand<asio::thread_pool::executor_type>> strand;

    std::atomic<std::uint64_t> posted{0};
    std::atomic<std::uint64_t> done{0};
    std::atomic<unsigned> waiters{0};
    std::mutex mutex;
    std::condition_variable changed;

    void finishOne() {
        ++done;
        if (waiters == 0) {
            return;
        }
        const std::lock_guard lock(mutex);
        changed.notify_all();
    }
};

DispatchQueue::DispatchQueue(std::string label) : state_(std::make_shared<State>(std::move(label))) {}

DispatchQueue::DispatchQueue(std::shared_ptr<State> state) : state_(std::move(state)) {}

const DispatchQueue &DispatchQueue::global() {
    // Never destroyed, like the pool.
    static const auto &queue = *[] {
        auto state = std::make_shared<State>("global");
        state->isSerial = false;
        return new DispatchQueue(std::move(state));
    }();
    return queue;
}

void DispatchQueue::async(std::function<void()> function) const {
    static_cast<void>(post(function));
}

bool DispatchQueue::post(std::function<void()> &function) const {
    if (DispatchPool::isShutDown()) {
        return false;
    }
    DispatchPool &pool = DispatchPool::shared();
    ++state_->posted;
    auto task = [&pool, state = state_, work = std::move(function)]() mutable {
        const bool hasRun = pool.run([&] {
            runReportingUncaught(state->label, [&] {
                work();
                // Destroyed before the function counts as done, so that the captures are gone when
                // `waitUntilIdle` returns.
                work = nullptr;
            });
        });
        if (hasRun) {
            state->finishOne();
        }
    };
    if (!state_->isSerial) {
        asio::post(pool.executor(), std::move(task));
        return true;
    }
    std::call_once(state_->strandMade, [&] { state_->strand.emplace(asio::make_strand(pool.executor())); });
    asio::post(*state_->strand, std::move(task));
    return true;
}

bool DispatchQueue::waitUntilIdle(std::chrono::milliseconds timeout) const {
    State &state = *state_;
    const std::uint64_t target = state.posted;
    // A serial queue completes functions in the order of posting, so the count identifies the ones that ran.
    const auto isIdle = [&] { return state.done >= (state.isSerial ? target : state.posted.load()); };
    if (isIdle()) {
        return true;
    }
    if (DispatchPool::isOnPoolThread() || DispatchPool::isShutDown()) {
        return false;
    }
    ++state.waiters;
    std::unique_lock lock(state.mutex);
    const bool isDone = state.changed.wait_for(lock, timeout, isIdle);
    --state.waiters;
    return isDone;
}

const std::string &DispatchQueue::label() const noexcept {
    return state_->label;
}

bool DispatchQueue::shutdown(std::chrono::milliseconds timeout) {
    return DispatchPool::shutdown(timeout);
}

} // namespace velmar
