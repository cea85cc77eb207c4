#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include <unicode/utf8.h>

namespace velmar {

/// One character of a text, or one ill-formed sequence of bytes.
struct DecodedCharacter {
    UChar32 value;      ///< Negative for an ill-formed sequence.
    std::size_t length; ///< In bytes, at least 1.
};

/// Decodes the character that begins at `position`, which is within the text.
inline DecodedCharacter decodeUtf8(std::string_view text, std::size_t position) noexcept {
    const char *bytes = text.data() + position;
    const auto window =
        static_cast<std::int32_t>(std::min<std::size_t>(text.size() - position, U8_MAX_LENGTH));
    std::int32_t length = 0;
    UChar32 value = 0;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion" // within the library's macro
    U8_NEXT(bytes, length, window, value);
#pragma GCC diagnostic pop
    return {value, static_cast<std::size_t>(length)};
}

} // namespace velmar
