#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

inline constexpr std::string_view lineFeedWrittenOut = R"(\x0a)";

/// A text as a terminal may see it: what would steer it (controls, changes of the direction of writing) and
/// what isn't UTF-8 is written out, as "\x1b", "\u202e" and "\xff"; a line feed becomes `lineFeed`.
[[nodiscard]] std::string printable(std::string_view text, std::string_view lineFeed = lineFeedWrittenOut);

/// The same, cut where it takes more than `columns` of a terminal: to as much of its beginning as takes them
/// together with an ellipsis. However long the text is, this takes no longer.
[[nodiscard]] std::string shortened(std::string_view text, std::size_t columns);

/// The text, filled with blanks to `columns` of a terminal; as it is where it takes more.
[[nodiscard]] std::string padded(std::string text, std::size_t columns);

} // namespace velmar
