#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

/// Comparison and case of UTF-8 texts that people see or write. Two texts are equal when they are canonically
/// equivalent: "é" as one character and as "e" with an accent are the same text. Ill-formed bytes
/// equal themselves; a change of case makes U+FFFD of them. Nothing depends on a locale. Any thread.
namespace velmar::UnicodeText {

[[nodiscard]] bool isAscii(std::string_view text) noexcept;
[[nodiscard]] bool isValidUtf8(std::string_view text) noexcept;

[[nodiscard]] bool isEqual(std::string_view left, std::string_view right);
/// The order of the code points of the composed forms (NFC).
[[nodiscard]] std::weak_ordering compare(std::string_view left, std::string_view right);

/// A part counts where its two ends don't separate a character from its combining marks: "e" is not contained
/// in "é", however that is written. The empty text is contained in every text.
[[nodiscard]] bool contains(std::string_view text, std::string_view part);
[[nodiscard]] bool hasPrefix(std::string_view text, std::string_view prefix);
[[nodiscard]] bool hasSuffix(std::string_view text, std::string_view suffix);

/// The text without the white space and line ends that it begins and ends with.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// The composed form (NFC), which is the same for equal texts.
[[nodiscard]] std::string composed(std::string_view text);

[[nodiscard]] std::string lowercased(std::string_view text);
[[nodiscard]] std::string uppercased(std::string_view text);

/// The columns that a terminal gives to a text: two to a wide character (East Asian, emoji), none to a mark
/// that combines with the character before it nor to what has no shape, one to ill-formed bytes.
[[nodiscard]] std::size_t displayWidth(std::string_view text);
/// The length in bytes of the longest beginning of a text that takes no more than so many columns.
[[nodiscard]] std::size_t lengthWithin(std::string_view text, std::size_t columns);

} // namespace velmar::UnicodeText
