#pragma once

#include <string_view>

namespace velmar {

/// Writes the whole text, waiting where the descriptor does not take it yet. 0, or the errno of the failure,
/// before which a part may have been written.
[[nodiscard]] int writeAll(int descriptor, std::string_view text) noexcept;

} // namespace velmar
