#include <Configuration/ColorItem.h>

#include <Configuration/ColorCoding.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

namespace velmar {

namespace {

/// Returns the number at the beginning of the text, optionally after "0x". Text after the last digit is
/// ignored. Returns std::nullopt without a leading digit.
std::optional<std::uint64_t> scanHexadecimal(std::string_view text) {
    const auto digit = [](char letter) -> std::optional<unsigned> {
        if (letter >= '0' && letter <= '9') {
            return static_cast<unsigned>(letter - '0');
        }
        const char lower = static_cast<char>(letter | 0x20);
        return lower >= 'a' && lower <= 'f' ? std::optional(static_cast<unsigned>(lower - 'a' + 10))
                                            : std::nullopt;
    };
    if ((text.starts_with("0x") || text.starts_with("0X")) && text.size() > 2 && digit(text[2])) {
        text.remove_prefix(2);
    }
    std::optional<std::uint64_t> number;
    for (const char letter : text) {
        const auto value = digit(letter);
        if (!value) {
            break;
        }
        number = number.value_or(0) * 16 + *value;
    }
    return number;
}

std::size_t characterCount(std::string_view utf8) {
    return static_cast<std::size_t>(std::ranges::count_if(
        utf8, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }));
}

} // namespace

std::string ColorItem::Specification::text() const {
    return fmt::format("#{:X}{:X}{:X}{}", red, green, blue, alpha ? fmt::format("{:X}", *alpha) : "");
}

PropertyList Decodable<ColorItem::Specification>::asWritten(const ColorItem::Specification &value) {
    return PropertyList(fmt::format("#{:02X}{:02X}{:02X}{}", value.red, value.green, value.blue,
                                    value.alpha ? fmt::format("{:02X}", *value.alpha) : ""));
}

ColorItem::Specification Decodable<ColorItem::Specification>::decode(const Decoding &decoding) {
    const auto text = decoding.value.string();
    const auto fail = [&]() -> ConfigurationError {
        return ConfigurationErrors::ColorSpecification{
            text ? std::optional(std::string(*text)) : std::nullopt, decoding.path.text()};
    };
    if (!text || !text->starts_with('#')) {
        throw fail();
    }
    const std::string_view digits = text->substr(1);
    const std::size_t count = characterCount(digits);
    if (count != 6 && count != 8) {
        throw fail();
    }
    const auto number = scanHexadecimal(digits);
    if (!number) {
        throw fail();
    }
    const auto byteAt = [&](unsigned shift) { return static_cast<int>((*number >> shift) & 0xFFU); };
    if (count == 6) {
        return {byteAt(16), byteAt(8), byteAt(0), std::nullopt};
    }
    return {byteAt(24), byteAt(16), byteAt(8), byteAt(0)};
}

} // namespace velmar
