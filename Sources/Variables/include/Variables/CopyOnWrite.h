#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace velmar {

/// A value that its copies share until one of them is written. Copying increments a reference count; a write
/// copies the value only while another copy shares it. A write never changes the value of another copy.
///
/// Different copies may be used by different threads concurrently; a single copy is not thread-safe.
template <class T>
class CopyOnWrite {
public:
    CopyOnWrite() : CopyOnWrite(T()) {}
    explicit CopyOnWrite(T value) : shared_(new Holding{std::move(value), {1}}) {}

    CopyOnWrite(const CopyOnWrite &other) noexcept : shared_(other.shared_) {
        if (shared_) {
            shared_->holders.fetch_add(1, std::memory_order_relaxed);
        }
    }
    /// Leaves `other` valid only for assignment and destruction.
    CopyOnWrite(CopyOnWrite &&other) noexcept : shared_(std::exchange(other.shared_, nullptr)) {}
    CopyOnWrite &operator=(CopyOnWrite other) noexcept {
        std::swap(shared_, other.shared_);
        return *this;
    }
    ~CopyOnWrite() {
        if (shared_ && shared_->holders.fetch_sub(1, std::memory_order_acq_rel) == 1) {
            delete shared_;
        }
    }

    [[nodiscard]] const T &operator*() const noexcept { return shared_->value; }
    [[nodiscard]] const T *operator->() const noexcept { return &shared_->value; }

    [[nodiscard]] bool isShared() const noexcept {
        // Acquire: the reads of former holders happen before the next write.
        return shared_->holders.load(std::memory_order_acquire) != 1;
    }

    /// Returns the value for writing, after copying it if it is shared. References into it must not be
    /// written through once this object has been copied.
    [[nodiscard]] T &unshared() {
        if (isShared()) {
            *this = CopyOnWrite(T(shared_->value));
        }
        return shared_->value;
    }

private:
    struct Holding {
        T value;
        std::atomic<std::uint32_t> holders;
    };

    Holding *shared_;
};

} // namespace velmar
