#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace velmar {

/// Searches text eight bytes at a time. A word of marks has the upper bit of each matching byte set. Only the
/// first mark in text order is reliable; later ones may be wrong.
struct ByteMarks {
    using Word = std::uint64_t;

    static constexpr Word all(unsigned char byte) noexcept { return Word{byte} * (~Word{0} / 0xFF); }

    static constexpr Word equal(Word bytes, char byte) noexcept {
        const Word difference = bytes ^ all(static_cast<unsigned char>(byte));
        return (difference - all(1)) & ~difference & all(0x80);
    }

    /// Marks the bytes above an ASCII character.
    static constexpr Word above(Word bytes, char limit) noexcept {
        return ((bytes + all(static_cast<unsigned char>(0x7F - limit))) | bytes) & all(0x80);
    }

    /// Loads eight bytes, the first one into the lowest byte of the word.
    static Word load(const char *bytes) noexcept {
        Word word = 0;
        std::memcpy(&word, bytes, sizeof word);
        if constexpr (std::endian::native == std::endian::big) {
            word = __builtin_bswap64(word);
        }
        return word;
    }

    /// Returns the first position, starting at `position`, that `marks(word)` marks, or the text's size if
    /// there is none.
    template <class Marks>
    static std::size_t find(std::string_view text, std::size_t position, Marks marks) noexcept {
        for (; text.size() - position >= sizeof(Word); position += sizeof(Word)) {
            if (const Word found = marks(load(text.data() + position))) {
                return position + static_cast<std::size_t>(std::countr_zero(found)) / 8;
            }
        }
        if (position < text.size()) {
            // Bytes beyond the text must not be read. Padding zeros may be marked, but lie beyond the text.
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
