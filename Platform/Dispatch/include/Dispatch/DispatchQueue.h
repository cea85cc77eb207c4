#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace velmar {

/// A queue of functions that run on the threads of the process-wide pool. A handle: copies share the queue,
/// and functions still pending when the last handle is destroyed are run. Thread-safe.
///
/// A function must not wait for another function of any queue: the pool has few threads. Exceptions of a
/// function are reported (`Dispatch/UncaughtHandler.h`), and the queue continues.
///
/// The pool's threads block all signals except those of faults, and a child process inherits the mask of the
/// thread that starts it. A function that starts a process must reset the child's mask.
class DispatchQueue {
public:
    /// Makes a serial queue: its functions run one at a time, in the order of posting. The label names it in
    /// reports.
    explicit DispatchQueue(std::string label);

    /// Returns the concurrent queue: its functions run in parallel, in no particular order.
    [[nodiscard]] static const DispatchQueue &global();

    /// Runs the function later. Never blocks and never runs it before returning. After `shutdown` the
    /// function is dropped.
    void async(std::function<void()> function) const;

    /// Waits until the functions posted so far have run; for the global queue, until none is pending or
    /// running. Returns false on timeout. Doesn't wait on a pool thread or after `shutdown`, but returns the
    /// current state.
    [[nodiscard]] bool waitUntilIdle(std::chrono::milliseconds timeout) const;

    [[nodiscard]] const std::string &label() const noexcept;

    /// Stops the pool before the process ends. Pending functions are never run; running ones, and the pool's
    /// threads, are waited for. Returns false if they don't end within the timeout. They then keep running,
    /// and the process should end with `std::_Exit`. Work that has to be finished must be waited for before.
    ///
    /// Call it before returning from main or calling `exit`. Otherwise `exit` calls it with a timeout of two
    /// seconds, after the destruction of static objects made after the pool's first use. A static object used
    /// by functions of a queue must therefore never be destroyed.
    static bool shutdown(std::chrono::milliseconds timeout);

private:
    friend class DispatchGroup;
    struct State;

    // Takes the function and posts it. After `shutdown`, returns false and leaves the function unchanged.
    [[nodiscard]] bool post(std::function<void()> &function) const;

    explicit DispatchQueue(std::shared_ptr<State> state);
    std::shared_ptr<State> state_;
};

} // namespace velmar
