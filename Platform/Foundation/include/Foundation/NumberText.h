#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace velmar {

/// Returns the shortest decimal text that reads back as the same number, always with a fraction ("0.6",
/// "100000.0"). Uses an exponent only below 0.0001 and from 2^54 on ("1e-05").
[[nodiscard]] std::string textOf(double number);

/// Converts a whole text to a number, or returns std::nullopt. Accepts the syntax of strtod in the C locale,
/// including "+5", "0x1F", "nan", "inf" and "1e999" (infinity), but no leading white space. Thread-safe.
[[nodiscard]] inline std::optional<double> numberOf(const std::string &text) noexcept;

/// Does the same as numberOf() without its inline path, which handles up to 15 digits faster than a call.
[[nodiscard]] std::optional<double> numberByLibrary(const std::string &text) noexcept;

inline std::optional<double> numberOf(const std::string &text) noexcept {
    constexpr std::size_t exactDigits = 15;
    if (text.empty() || text.size() > exactDigits) {
        return numberByLibrary(text);
    }
    std::int64_t number = 0;
    for (const char character : text) {
        if (character < '0' || character > '9') {
            return numberByLibrary(text);
        }
        number = number * 10 + (character - '0');
    }
    return static_cast<double>(number);
}

} // namespace velmar
