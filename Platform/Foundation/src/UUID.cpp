#include <Foundation/UUID.h>

#include <cerrno>
#include <string_view>
#include <system_error>

#include <sys/random.h>

namespace velmar {

UUID::UUID() {
    // A request of 16 bytes is never truncated; a signal can interrupt it only before the generator is ready.
    while (getrandom(bits_.data(), sizeof bits_, 0) < 0) {
        if (errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "getrandom");
    }
    bits_[0] = (bits_[0] & ~0xF000ULL) | 0x4000ULL;
    bits_[1] = (bits_[1] & ~(3ULL << 62U)) | (2ULL << 62U);
}

std::string UUID::text() const {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    result.reserve(36);
    for (unsigned digit = 0; digit < 32; ++digit) {
        if (digit == 8 || digit == 12 || digit == 16 || digit == 20)
            result += '-';
        result += digits[bits_[digit / 16] >> (60 - 4 * (digit % 16)) & 0xFU];
    }
    return result;
}

} // namespace velmar
