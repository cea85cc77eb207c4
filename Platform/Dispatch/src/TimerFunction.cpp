#include <Dispatch/TimerFunction.h>

#include <Dispatch/UncaughtHandler.h>

#include <mutex>
#include <utility>

namespace velmar {

struct TimerFunction::State {
    State(AnyQueue of, std::function<void()> run)
        : queue(std::move(of)), function(std::make_shared<const std::function<void()>>(std::move(run))) {}

    const AnyQueue queue;
    // Also held while posting, so that nothing uses the queue after `cancel`.
    std::mutex mutex;
    std::shared_ptr<const std::function<void()>> function; // Null when cancelled.
    bool isTickPosted = false;
};

TimerFunction::TimerFunction(AnyQueue queue, std::function<void()> function)
    : state_(std::make_shared<State>(std::move(queue), std::move(function))) {}

const AnyQueue &TimerFunction::queue() const noexcept {
    return state_->queue;
}

void TimerFunction::post() const {
    const std::lock_guard lock(state_->mutex);
    if (state_->function) {
        state_->queue.async([*this] { run(); });
    }
}

bool TimerFunction::postTick() const {
    const std::lock_guard lock(state_->mutex);
    if (!state_->function) {
        return false;
    }
    if (!state_->isTickPosted) {
        state_->queue.async([*this] {
            run();
            const std::lock_guard runLock(state_->mutex);
            state_->isTickPosted = false;
        });
        state_->isTickPosted = true;
    }
    return true;
}

void TimerFunction::run() const {
    std::shared_ptr<const std::function<void()>> function;
    {
        const std::lock_guard lock(state_->mutex);
        function = state_->function;
    }
    if (function) {
        runReportingUncaught("Timer", *function);
    }
}

void TimerFunction::cancel() const {
    // Destroyed after the lock is released: the destructors of the captures may use the timer.
    std::shared_ptr<const std::function<void()>> function;
    const std::lock_guard lock(state_->mutex);
    function.swap(state_->function);
}

} // namespace velmar
