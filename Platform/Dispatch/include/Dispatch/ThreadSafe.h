#pragma once

#include <mutex>
#include <string>
#include <utility>

namespace velmar {

/// A value that several threads read and write, one at a time. Each access is a short call on the caller's
/// thread. A function passed in must not call out: no observers, no other ThreadSafe, no waiting.
template <class T>
class ThreadSafe {
public:
    /// The label identifies the value in a debugger.
    ThreadSafe(T value, std::string label) : value_(std::move(value)), label_(std::move(label)) {}

    ThreadSafe(const ThreadSafe &) = delete;
    ThreadSafe &operator=(const ThreadSafe &) = delete;

    [[nodiscard]] T value() const {
        const std::lock_guard lock(mutex_);
        return value_;
    }

    void set(T value) {
        // The old value is destroyed after the lock is released: its destructor may read this value.
        const std::lock_guard lock(mutex_);
        std::swap(value_, value);
    }

    /// Returns the function's result for the value; never a reference into the value.
    template <class Function>
    auto withValue(Function &&function) const {
        const std::lock_guard lock(mutex_);
        return std::forward<Function>(function)(value_);
    }

    /// Changes the value in place, atomically for other threads, and returns the function's result.
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
