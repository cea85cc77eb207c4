#pragma once

#include <compare>
#include <cstddef>
#include <string>
#include <string_view>

/// Comparison and case mapping of UTF-8 texts for users. Two texts are equal if they are canonically
/// equivalent, such as "é" as one character and as "e" with a combining accent. Ill-formed bytes equal
/// themselves; case mapping replaces them by U+FFFD. Locale-independent and thread-safe.
namespace velmar::UnicodeText {

[[nodiscard]] bool isAscii(std::string_view text) noexcept;
[[nodiscard]] bool isValidUtf8(std::string_view text) noexcept;

[[nodiscard]] bool isEqual(std::string_view left, std::string_view right);
/// Orders texts by the code points of their composed forms (NFC).
[[nodiscard]] std::weak_ordering compare(std::string_view left, std::string_view right);

/// Returns true if the part occurs in the text and neither of its ends separates a character from its
/// combining marks: "é" doesn't contain "e", in either form. Every text contains the empty text.
[[nodiscard]] bool contains(std::string_view text, std::string_view part);
[[nodiscard]] bool hasPrefix(std::string_view text, std::string_view prefix);
[[nodiscard]] bool hasSuffix(std::string_view text, std::string_view suffix);

/// Returns the text without leading and trailing white space and line ends.
[[nodiscard]] std::string_view trimmed(std::string_view text) noexcept;

/// Returns the composed form (NFC), which is the same for equal texts.
[[nodiscard]] std::string composed(std::string_view text);

[[nodiscard]] std::string lowercased(std::string_view text);
[[nodiscard]] std::string uppercased(std::string_view text);

/// Returns the number of terminal columns: two for each wide character (East Asian, emoji), none for
/// combining marks and invisible characters, one for any other character and for an ill-formed sequence.
[[nodiscard]] std::size_t displayWidth(std::string_view text);
/// Returns the length in bytes of the longest prefix that needs at most `columns` terminal columns.
[[nodiscard]] std::size_t lengthWithin(std::string_view text, std::size_t columns);

} // namespace velmar::UnicodeText
