#pragma once

#include <utility>

#include <unistd.h>

namespace velmar {

/// Owns a file descriptor of the operating system.
class Descriptor {
public:
    /// Takes ownership of an open descriptor. A negative number means no descriptor.
    explicit Descriptor(int number = -1) noexcept : number_(number) {}
    Descriptor(Descriptor &&other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor &operator=(Descriptor &&other) noexcept {
        if (this != &other) {
            reset(std::exchange(other.number_, -1));
        }
        return *this;
    }
    ~Descriptor() { reset(-1); }

    [[nodiscard]] int number() const noexcept { return number_; }
    [[nodiscard]] explicit operator bool() const noexcept { return number_ >= 0; }
    /// Releases ownership to the caller and returns the descriptor's number.
    [[nodiscard]] int release() noexcept { return std::exchange(number_, -1); }

private:
    void reset(int number) noexcept {
        if (number_ >= 0) {
            close(number_);
        }
        number_ = number;
    }

    int number_;
};

} // namespace velmar
