#pragma once

#include <asio/thread_pool.hpp>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace velmar {

/// The threads of all queues, started at first use. Never destroyed, so that a queue of a static object works
/// until the process ends; `shutdown` ends its threads.
class DispatchPool {
public:
    [[nodiscard]] static DispatchPool &shared();
    [[nodiscard]] static bool isShutDown() noexcept;
    [[nodiscard]] static bool isOnPoolThread() noexcept;

    /// See DispatchQueue::shutdown.
    static bool shutdown(std::chrono::milliseconds timeout);

    [[nodiscard]] asio::thread_pool::executor_type executor() noexcept { return threads_.get_executor(); }

    /// Runs a function on the current pool thread. Returns false, without running it, if the pool is shut
    /// down. The function must not throw.
    template <class Function>
    bool run(const Function &function) {
        const bool mayRun = begin();
        if (mayRun) {
            function();
        }
        end();
        return mayRun;
    }

private:
    DispatchPool();
    bool begin() noexcept;
    void end() noexcept;
    bool stop(std::chrono::milliseconds timeout);
    void startJoining();

    asio::thread_pool threads_;
    std::atomic<std::size_t> running_{0};
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isJoining_ = false; // Both guarded by mutex_.
    bool hasJoined_ = false;
};

} // namespace velmar
