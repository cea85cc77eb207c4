#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace velmar::expressions {

/// The tokens of a line that is written as most are: in ASCII, with blanks between words, each of which is an
/// operator, a run of brackets, or one operand with brackets around it. They are those that the pattern of
/// the tokeniser with the default names finds, without any gap, in a small part of its time. None for any
/// other line, which only the pattern can judge.
[[nodiscard]] std::optional<std::vector<std::string_view>> plainTokens(std::string_view line);

/// Whether the default pattern of names matches the whole text.
[[nodiscard]] bool isDefaultName(std::string_view text) noexcept;

} // namespace velmar::expressions
