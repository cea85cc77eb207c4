#pragma once

#include <string_view>

namespace velmar {

/// Writes the whole text. Blocks while the descriptor accepts no data. Returns 0, or the errno of the
/// failure; part of the text may have been written before it.
[[nodiscard]] int writeAll(int descriptor, std::string_view text) noexcept;

} // namespace velmar
