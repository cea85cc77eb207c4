#include <Foundation/NumberText.h>

#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>

namespace velmar {

namespace {

locale_t cLocale() noexcept {
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
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
    auto *const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format).ptr;
    std::string text(buffer.data(), end);
    if (isFixed && text.find('.') == std::string::npos) {
        text += ".0";
    }
    return text;
}

std::optional<double> numberByLibrary(const std::string &text) noexcept {
    if (text.empty() || isWhiteSpace(text.front())) {
        return std::nullopt;
    }
    char *end = nullptr;
    const double number = strtod_l(text.c_str(), &end, cLocale());
    return end == text.c_str() + text.size() ? std::optional(number) : std::nullopt;
}

} // namespace velmar
