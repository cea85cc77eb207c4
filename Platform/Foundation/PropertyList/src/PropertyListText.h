#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// What a text may hold: every character, or those that XML 1.0 allows.
enum class Characters { All, OfXml };

/// The offset of the first byte that is not UTF-8 or begins a character that is not allowed; npos for a good
/// text.
[[nodiscard]] std::size_t firstBadByte(std::string_view text, Characters allowed) noexcept;

/// What is wrong at that offset, as the reason of a PropertyListError.
[[nodiscard]] std::string reasonOfBadByte(std::string_view text, std::size_t offset);

[[nodiscard]] bool isAscii(std::string_view text) noexcept;

[[nodiscard]] bool isCharacterOfXml(char32_t character) noexcept;

/// Appends the character, which must be a valid code point, as UTF-8.
void appendUtf8(std::string &text, char32_t character);

/// At most 40 bytes of a good text, for messages.
[[nodiscard]] std::string shortened(std::string_view text);

} // namespace velmar
