#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

inline constexpr std::string_view lineFeedWrittenOut = R"(\x0a)";

/// Returns a text that is safe to print on a terminal. Terminal controls, bidirectional controls and invalid
/// UTF-8 are escaped, as in "\x1b", "\u202e" and "\xff"; a line feed becomes `lineFeed`.
[[nodiscard]] std::string printable(std::string_view text, std::string_view lineFeed = lineFeedWrittenOut);

/// Returns the printable text, cut to `columns` of a terminal including an ellipsis if it is wider. The time
/// is bounded by `columns`, not by the length of the text.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t columns);

/// Pads the text with blanks to `columns` of a terminal. A wider text is unchanged.
[[nodiscard]] std::string padded(std::string text, std::size_t columns);

} // namespace velmar
