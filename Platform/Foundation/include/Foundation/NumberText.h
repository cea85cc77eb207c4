#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// The shortest decimal text of a number that reads back the same, with a fraction ("0.6", "100000.0"); with
/// an exponent only below 0.0001 and from 2^54 on ("1e-05").
[[nodiscard]] std::string textOf(double number);

/// The number that a text is as a whole, absent if it is none: what the C library's strtod takes in the C
/// locale, so that "+5", "0x1F", "nan", "inf" and "1e999" (infinity) are numbers, without white space in
/// front. Any thread.
[[nodiscard]] inline std::optional<double> numberOf(const std::string &text) noexcept;

/// The same without the short way, which is inline since it takes less time than a call does.
[[nodiscard]] std::optional<double> numberByLibrary(const std::string &text) noexcept;

inline std::optional<double> numberOf(const std::string &text) noexcept {
    constexpr std::size_t exactDigits = 15;
    if (text.empty() || text.size() > exactDigits)
        return numberByLibrary(text);
    std::int64_t number = 0;
    for (const char character : text) {
        if (character < '0' || character > '9')
            return numberByLibrary(text);
        number = number * 10 + (character - '0');
    }
    return static_cast<double>(number);
}

} // namespace velmar
