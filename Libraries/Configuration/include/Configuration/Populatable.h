#pragma once

#include <Configuration/PopulatableValue.h>
#include <expressions/Variables.h>

#include <string>
#include <string_view>

namespace velmar {

// A text may refer to variables: `${NAME}`, from "${" to the next "}". What stands between them is the name,
// blanks and line ends included; "${" without a "}" after it is plain text.

/// The names of the variables that a text uses. One scan.
[[nodiscard]] VariableNames usedVariables(std::string_view text);

/// The names on which the populated form of a text depends: those that it uses and, through the values that
/// these have, all others; names without a value are among them. Circles end; of a text beyond the limits of
/// `populated`, which is shown as it stands, the names may be incomplete.
[[nodiscard]] VariableNames involvedVariables(std::string_view text, const Variables &variables);

/// The text with each reference replaced by the populated value of its variable. Throws ExpressionError:
/// UndefinedVariable with the very text whose reference leads nowhere, CircularReference where a name comes
/// up again on its own path (updates can bring that about), TooLarge beyond 16 MiB of text or of names, or a
/// million references: thirty variables are enough for a text that never ends.
[[nodiscard]] std::string populated(std::string_view text, const Variables &variables);

/// The name of a variable that is given bare or as `${NAME}`: without the "${" before and the "}" after it.
[[nodiscard]] std::string_view bareVariableName(std::string_view name) noexcept;

} // namespace velmar
