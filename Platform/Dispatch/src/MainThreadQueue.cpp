#include <Dispatch/MainThreadQueue.h>

#include <Dispatch/UncaughtHandler.h>

#include <asio/executor_work_guard.hpp>
#include <asio/io_context.hpp>
#include <asio/post.hpp>

#include <stdexcept>
#include <utility>

namespace velmar {

struct MainThreadQueue::Loop {
    asio::io_context context;
    // Keeps the context from stopping when nothing is pending.
    asio::executor_work_guard<asio::io_context::executor_type> work{context.get_executor()};
};

MainThreadQueue::MainThreadQueue() : loop_(std::make_unique<Loop>()) {}
MainThreadQueue::~MainThreadQueue() = default;

void MainThreadQueue::async(std::function<void()> function) {
    asio::post(loop_->context, std::move(function));
}

void MainThreadQueue::run() {
    requireMainThread();
    while (!std::exchange(isStopped_, false)) {
        runReportingUncaught("MainQueue", [this] { loop_->context.run_one(); });
    }
}

void MainThreadQueue::stop() {
    asio::post(loop_->context, [this] { isStopped_ = true; });
}

std::size_t MainThreadQueue::runUntilEmpty() {
    requireMainThread();
    return loop_->context.poll();
}

bool MainThreadQueue::runUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeout) {
    requireMainThread();
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    while (!condition()) {
        if (loop_->context.run_one_until(deadline) == 0) {
            return condition();
        }
    }
    return true;
}

void MainThreadQueue::requireMainThread() const {
    if (!isCurrent()) {
        throw std::logic_error("A main queue is run by the thread that made it.");
    }
}

} // namespace velmar
