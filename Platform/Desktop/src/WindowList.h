#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmar {

/// The windows of all applications as the window manager of an X server tells of them. Numbers are the
/// server's; nothing of all this does anything where there is no X server.
namespace WindowList {

/// From the lowest to the highest.
[[nodiscard]] std::vector<std::uint32_t> fromTheLowest();

/// The one that the keyboard goes to; 0 for none.
[[nodiscard]] std::uint32_t active();

/// What kind of program a window is of, in its own words: a name and a class, each with a NUL at its end.
[[nodiscard]] std::string applicationOf(std::uint32_t window);

/// Gives the keyboard to a window, whoever has it.
void activate(std::uint32_t window);

/// Puts a window of another application above the ordinary ones, and gives it the keyboard.
void lift(std::uint32_t window);

} // namespace WindowList

} // namespace velmar
