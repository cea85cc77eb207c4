#include <Foundation/NumberText.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <locale.h>
#include <stdlib.h>

namespace velmar {

namespace {

locale_t cLocale() noexcept {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

bool isDigit(char character) noexcept {
    return character >= '0' && character <= '9';
}

bool isWhiteSpace(char character) noexcept {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

} // namespace

std::string textOf(double number) {
    constexpr double firstWithExponent = 18014398509481984.0; // 2^54
    const double size = std::abs(number);
    const bool isFixed = number == 0 || (size >= 0.0001 && size < firstWithExponent);

    std::array<char, 64> buffer{};
    const auto format = isFixed ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format).ptr;
    std::string text(buffer.data(), end);
    if (isFixed && text.find('.') == std::string::npos) {
        text += ".0";
    }
    return text;
}

std::optional<double> numberOf(const std::string &text) noexcept {
    constexpr std::size_t exactDigits = 15;
    if (text.empty() || isWhiteSpace(text.front())) {
        return std::nullopt;
    }
    // Most numbers are short whole ones, which strtod takes three times as long for.
    if (text.size() <= exactDigits && std::all_of(text.begin(), text.end(), isDigit)) {
        std::int64_t number = 0;
        for (const char digit : text) {
            number = number * 10 + (digit - '0');
        }
        return static_cast<double>(number);
    }
    char *end = nullptr;
    const double number = strtod_l(text.c_str(), &end, cLocale());
    return end == text.c_str() + text.size() ? std::optional(number) : std::nullopt;
}

} // namespace velmar
