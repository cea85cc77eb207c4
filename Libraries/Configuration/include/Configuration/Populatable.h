#pragma once

#include <Configuration/PopulatableValue.h>
#include <expressions/Variables.h>

#include <string>
#include <string_view>

namespace velmar {

// A text may refer to variables: `${NAME}`, from "${" to the next "}". The name is everything between them,
// including blanks and line ends. "${" without a "}" after it is plain text.

/// Returns the names of the variables that a text uses, after one scan.
[[nodiscard]] VariableNames usedVariables(std::string_view text);

/// Returns the names that the populated form of a text depends on: those in the text and, recursively, those
/// in the values of variables, including names without a value. Circular references are permitted. The result
/// may be incomplete for a text beyond the limits of populated().
[[nodiscard]] VariableNames involvedVariables(std::string_view text, const Variables &variables);

/// Returns the text with each reference replaced by the populated value of its variable. Throws
/// ExpressionError: UndefinedVariable with the text that contains the reference, CircularReference if a
/// variable depends on itself (updates can cause that), or TooLarge beyond 16 MiB of text or of names, or a
/// million references. The limits are necessary because thirty variables suffice for a text of 2^30 parts.
[[nodiscard]] std::string populated(std::string_view text, const Variables &variables);

/// Returns the name of a variable given bare or as `${NAME}`, without a leading "${" and a trailing "}".
[[nodiscard]] std::string_view bareVariableName(std::string_view name) noexcept;

} // namespace velmar
