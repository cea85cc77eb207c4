#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A queue of functions that run on the threads of the process-wide pool. A handle: copies are the same
/// queue, and functions that wait when the last handle goes are still run. Any thread.
///
/// No function may wait on its thread for another one of any queue: the pool has few threads. A function that
/// throws is reported (`Dispatch/UncaughtHandler.h`), and the queue goes on.
///
/// The pool's threads block all signals but those of faults, and a child process inherits the mask of the
/// thread that starts it: whoever starts a process in a function resets the child's mask.
class DispatchQueue {
public:
    /// A serial queue: its functions run one after the other, in the order of posting. The label names it in
    /// reports.
    explicit DispatchQueue(std::string label);

    /// The queue whose functions run side by side, in no order.
    [[nodiscard]] static const DispatchQueue &global();

    /// Runs the function later. Never blocks, never runs it at once. After `shutdown` the function is
    /// dropped.
    void async(std::function<void()> function) const;

    /// Waits until the functions posted so far have run (for the global queue: until none waits or runs);
    /// false if that takes longer than the timeout. On a thread of the pool it never waits and tells how
    /// things stand.
    [[nodiscard]] bool waitUntilIdle(std::chrono::milliseconds timeout) const;

    [[nodiscard]] const std::string &label() const noexcept;

    /// Ends the pool before the process ends: no function begins any more, those that wait are never run, and
    /// the ones that run, and the pool's threads, are waited for. False if they don't end within the timeout;
    /// they are then left to the end of the process, which should come by `std::_Exit`. What has to be done
    /// still is waited for before.
    ///
    /// A process calls it before it returns from main or calls `exit`. One that doesn't has it done in
    /// `exit`, for at most two seconds, when static objects made after the pool's first use are destroyed
    /// already: a static object that functions of a queue use is never destroyed.
    static bool shutdown(std::chrono::milliseconds timeout);

private:
    friend class DispatchGroup;
    struct State;

    // Takes the function and posts it; false after `shutdown`, with the function left where it is.
    [[nodiscard]] bool post(std::function<void()> &function) const;

    explicit DispatchQueue(std::shared_ptr<State> state);
    std::shared_ptr<State> state_;
};

} // namespace velmar
