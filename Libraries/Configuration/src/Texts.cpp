#include <Configuration/Texts.h>

#include <fmt/format.h>

#include <array>
#include <charconv>
#include <cmath>

namespace velmar {

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

std::string foundText(const PropertyList &value) {
    constexpr std::size_t longestShown = 80;
    switch (value.kind()) {
    case PropertyList::Kind::Boolean:
        return "a boolean";
    case PropertyList::Kind::Integer:
    case PropertyList::Kind::UnsignedInteger:
        return fmt::format("the integer {}", value.text());
    case PropertyList::Kind::Real:
        return fmt::format("the real {}", textOf(*value.real()));
    case PropertyList::Kind::String:
        return value.string()->size() > longestShown ? "a long string" : fmt::format("'{}'", *value.string());
    case PropertyList::Kind::Data:
        return "data";
    case PropertyList::Kind::Date:
        return "a date";
    case PropertyList::Kind::Array:
        return "an array";
    case PropertyList::Kind::Dictionary:
        break;
    }
    return "a dictionary";
}

std::string possibleValuesText(std::span<const std::string_view> rawStrings) {
    std::string text = "string | Possible values: ";
    for (std::size_t index = 0; index < rawStrings.size(); ++index) {
        text += fmt::format("{}'{}'", index == 0 ? "" : ", ", rawStrings[index]);
    }
    return text;
}

std::string listText(const std::vector<std::string_view> &texts) {
    std::string text = "[";
    for (const std::string_view element : texts) {
        text += fmt::format("{}\"{}\"", text.size() > 1 ? ", " : "", element);
    }
    return text + "]";
}

} // namespace velmar
