#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// Allowed characters: all, or those of XML 1.0.
enum class Characters { All, OfXml };

/// Returns the offset of the first byte that is not UTF-8 or starts a character that is not allowed; npos for
/// valid text.
[[nodiscard]] std::size_t firstBadByte(std::string_view text, Characters allowed) noexcept;

/// Returns the fault at that offset, as the reason of a PropertyListError.
[[nodiscard]] std::string reasonOfBadByte(std::string_view text, std::size_t offset);

[[nodiscard]] bool isAscii(std::string_view text) noexcept;

[[nodiscard]] bool isCharacterOfXml(char32_t character) noexcept;

/// Appends the character as UTF-8. It must be a valid code point.
void appendUtf8(std::string &text, char32_t character);

/// Shortens valid UTF-8 to at most 40 bytes plus "...", for messages.
[[nodiscard]] std::string shortened(std::string_view text);

} // namespace velmar
