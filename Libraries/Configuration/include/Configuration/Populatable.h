#pragma once

#include <expressions/Variables.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

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

/// Whether values of a type can hold references: texts, types made of texts and collections of these do.
template <class T>
struct IsPopulatable : std::false_type {};
template <>
struct IsPopulatable<std::string> : std::true_type {};
template <class T>
struct IsPopulatable<std::optional<T>> : IsPopulatable<T> {};
template <class T>
struct IsPopulatable<std::vector<T>> : IsPopulatable<T> {};
template <class T>
struct IsPopulatable<std::map<std::string, T>> : IsPopulatable<T> {};

template <class T>
concept Populatable = IsPopulatable<std::remove_cv_t<T>>::value;

/// Calls `function` with every text of a value, in their order; the keys of a dictionary are none. A type of
/// its own tells its texts by `visitTexts`, or its only one, which cannot be changed in place, by `text`.
template <Populatable T, class Function>
void visitTexts(T &value, Function &&function) {
    if constexpr (std::is_same_v<std::remove_cv_t<T>, std::string>) {
        function(value);
    } else if constexpr (requires { value.visitTexts(function); }) {
        value.visitTexts(function);
    } else if constexpr (requires { value.text(); }) {
        function(value.text());
    } else if constexpr (requires { value.has_value(); }) {
        if (value) {
            visitTexts(*value, function);
        }
    } else {
        for (auto &element : value) {
            if constexpr (requires { element.second; }) {
                visitTexts(element.second, function);
            } else {
                visitTexts(element, function);
            }
        }
    }
}

} // namespace velmar
