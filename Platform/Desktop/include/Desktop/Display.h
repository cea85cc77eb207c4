#pragma once

#include <optional>
#include <span>
#include <string>

namespace velmar {

/// Returns a sentence for the user if no window can be shown, otherwise std::nullopt. Must be called before
/// the application is created, because the toolkit exits the process if there is no display. The arguments
/// are searched for `-platform`, which overrides the usual platforms.
[[nodiscard]] std::optional<std::string> displayProblem(std::span<const std::string> arguments);

} // namespace velmar
