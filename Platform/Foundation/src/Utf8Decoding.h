#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <unicode/utf8.h>

namespace velmar {

/// A character, or an ill-formed sequence of bytes.
struct DecodedCharacter {
    UChar32 value;      ///< Negative for an ill-formed sequence.
    std::size_t length; ///< In bytes, at least 1.
};

/// Decodes the character at `position`, which must be less than the size of the text.
inline DecodedCharacter decodeUtf8(std::string_view text, std::size_t position) noexcept {
    const char *bytes = text.data() + position;
    const auto window =
        static_cast<std::int32_t>(std::min<std::size_t>(text.size() - position, U8_MAX_LENGTH));
    std::int32_t length = 0;
    UChar32 value = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // ICU's macro converts implicitly
    U8_NEXT(bytes, length, window, value);
#pragma GCC diagnostic pop
    return {value, static_cast<std::size_t>(length)};
}

} // namespace velmar
