#pragma once

#include <mutex>
#include <string>
#include <utility>

namespace velmar {

/// A value that several threads read and write, one at a time. Each access is one short call on the caller's
/// thread; a function given to it must not call out (no observers, no other ThreadSafe, no waiting).
template <class T>
class ThreadSafe {
public:
    /// The label says in a debugger whose value this is.
    ThreadSafe(T value, std::string label) : value_(std::move(value)), label_(std::move(label)) {}

    ThreadSafe(const ThreadSafe &) = delete;
    ThreadSafe &operator=(const ThreadSafe &) = delete;

    [[nodiscard]] T value() const {
        const std::lock_guard lock(mutex_);
        return value_;
    }

    void set(T value) {
        // The former value dies after the lock is gone: its destructor may do anything.
        const std::lock_guard lock(mutex_);
        std::swap(value_, value);
    }

    /// Gives what the function makes of the value; never a reference into it.
    template <class Function>
    auto withValue(Function &&function) const {
        const std::lock_guard lock(mutex_);
        return std::forward<Function>(function)(value_);
    }

    /// Changes the value in place, as one step for all other threads; gives what the function gives.
    template <class Function>
    auto mutate(Function &&function) {
        const std::lock_guard lock(mutex_);
        return std::forward<Function>(function)(value_);
    }

    [[nodiscard]] const std::string &label() const noexcept { return label_; }

private:
    mutable std::mutex mutex_;
    T value_;
    std::string label_;
};

} // namespace velmar
