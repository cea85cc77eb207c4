#pragma once

#include <optional>
#include <span>
#include <string>

namespace velmar {

/// Why no window could be shown, as a sentence for the one who started the program; nothing where one can.
/// Asked before the application is made, since the toolkit ends the process when it finds no display. The
/// arguments are looked through for a choice of another platform than the usual ones.
[[nodiscard]] std::optional<std::string> displayProblem(std::span<const std::string> arguments);

} // namespace velmar
