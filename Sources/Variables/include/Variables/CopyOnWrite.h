#pragma once

#include <atomic>
#include <cstdint>
#include <utility>

namespace velmar {

/// A value whose copies share it until one of them is written: copying costs a count, and a write copies the
/// value only while somebody else holds it. What a copy shows never changes by a write to another one.
///
/// Different copies may be used by different threads at the same time, one copy by one thread at a time.
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
    /// The other one may only be assigned to or destroyed afterwards.
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
        // Acquire: all that former holders read happened before what is written next.
        return shared_->holders.load(std::memory_order_acquire) != 1;
    }

    /// The value for writing, of this copy alone; references into it hold until the next copy is made.
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
