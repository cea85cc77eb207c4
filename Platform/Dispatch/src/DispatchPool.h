#pragma once

#include <asio/thread_pool.hpp>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>

namespace velmar {

/// The threads of all queues, started at the first use. It is never destroyed, so that a queue of a static
/// object works until the process ends; its threads end in `shutdown`.
class DispatchPool {
public:
    [[nodiscard]] static DispatchPool &shared();
    [[nodiscard]] static bool isShutDown() noexcept;
    [[nodiscard]] static bool isOnPoolThread() noexcept;

    /// See DispatchQueue::shutdown.
    static bool shutdown(std::chrono::milliseconds timeout);

    [[nodiscard]] asio::thread_pool::executor_type executor() noexcept { return threads_.get_executor(); }

    /// Runs a function, which doesn't throw, on the pool's thread that it is called on, unless the pool is
    /// shut down. False if so.
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
    bool isJoining_ = false; // both under the mutex
    bool hasJoined_ = false;
};

} // namespace velmar
