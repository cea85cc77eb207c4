#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmar {

/// Looks for bytes eight at a time. A word of marks has the upper bit set of each byte that is looked for;
/// beyond the first of them in the text a mark may be wrong.
struct ByteMarks {
    using Word = std::uint64_t;

    static constexpr Word all(unsigned char byte) noexcept { return Word{byte} * (~Word{0} / 0xFF); }

    static constexpr Word equal(Word bytes, char byte) noexcept {
        const Word difference = bytes ^ all(static_cast<unsigned char>(byte));
        return (difference - all(1)) & ~difference & all(0x80);
    }

    /// Those above an ASCII character.
    static constexpr Word above(Word bytes, char limit) noexcept {
        return ((bytes + all(static_cast<unsigned char>(0x7F - limit))) | bytes) & all(0x80);
    }

    /// The bytes from a position on, the first in the lowest place.
    static Word load(const char *bytes) noexcept {
        Word word = 0;
        std::memcpy(&word, bytes, sizeof word);
        if constexpr (std::endian::native == std::endian::big) {
            word = __builtin_bswap64(word);
        }
        return word;
    }

    /// The first position from `position` on that is marked by `marks(word)`; the text's size if there is
    /// none.
    template <class Marks>
    static std::size_t find(std::string_view text, std::size_t position, Marks marks) noexcept {
        for (; text.size() - position >= sizeof(Word); position += sizeof(Word)) {
            if (const Word found = marks(load(text.data() + position))) {
                return position + static_cast<std::size_t>(std::countr_zero(found)) / 8;
            }
        }
        if (position < text.size()) {
            // What stands behind the text is not read; zeros could be marked, and lie behind it as well.
            Word rest = 0;
            for (std::size_t index = text.size(); index > position; --index) {
                rest = rest << 8U | static_cast<unsigned char>(text[index - 1]);
            }
            if (const Word found = marks(rest)) {
                const std::size_t at = position + static_cast<std::size_t>(std::countr_zero(found)) / 8;
                return at < text.size() ? at : text.size();
            }
        }
        return text.size();
    }
};

} // namespace velmar
