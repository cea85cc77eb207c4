#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace velmar {

/// The windows of all applications, as reported by an X server's window manager. Windows are identified by
/// the server's numbers. Without an X server all functions do nothing.
namespace WindowList {

/// Returns the windows from bottom to top.
[[nodiscard]] std::vector<std::uint32_t> fromTheLowest();

/// Returns the window with the keyboard focus; 0 for none.
[[nodiscard]] std::uint32_t active();

/// Returns the WM_CLASS of a window: name and class, each terminated by NUL.
[[nodiscard]] std::string applicationOf(std::uint32_t window);

/// Gives the keyboard focus to a window.
void activate(std::uint32_t window);

/// Puts a window of another application above ordinary windows and gives it the keyboard focus.
void lift(std::uint32_t window);

} // namespace WindowList

} // namespace velmar
