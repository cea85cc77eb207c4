#pragma once

#include <string_view>
#include <utility>

#include <unistd.h>

namespace velmar {

/// Owns an open descriptor; -1 for none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    FileDescriptor(FileDescriptor &&other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileDescriptor &operator=(FileDescriptor &&other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileDescriptor() {
        if (descriptor_ >= 0) {
            close(descriptor_);
        }
    }

    [[nodiscard]] bool isOpen() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

private:
    int descriptor_ = -1;
};

/// Writes the whole text, waiting where the descriptor does not take it yet. Throws std::system_error.
void writeAll(int descriptor, std::string_view text);

} // namespace velmar
