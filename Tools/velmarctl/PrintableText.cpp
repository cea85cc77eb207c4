#include <PrintableText.h>

#include <Foundation/UnicodeText.h>

#include <fmt/format.h>

#include <algorithm>
#include <cstdint>

namespace velmar {

namespace {

// Returns the length in bytes of the first character; 0 if the text is empty or starts with invalid UTF-8.
std::size_t characterLength(std::string_view text) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(text.size(), 4); ++length) {
        if (UnicodeText::isValidUtf8(text.substr(0, length))) {
            return length;
        }
    }
    return 0;
}

std::uint32_t codePoint(std::string_view character) {
    const auto first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1) {
        return first;
    }
    std::uint32_t value = first & (0xFFU >> (character.size() + 1)); // Without the length bits.
    for (const char byte : character.substr(1)) {
        value = value << 6U | (static_cast<unsigned char>(byte) & 0x3FU);
    }
    return value;
}

// Returns whether a character is a control, a line separator or a bidirectional control.
bool steersTerminals(std::uint32_t codePoint) noexcept {
    const auto isBetween = [codePoint](std::uint32_t first, std::uint32_t last) {
        return first <= codePoint && codePoint <= last;
    };
    return isBetween(0, 0x1F) || isBetween(0x7F, 0x9F) || codePoint == 0x61C || isBetween(0x200E, 0x200F) ||
           isBetween(0x2028, 0x202E) || isBetween(0x2066, 0x2069);
}

// Removes the first character from the text and returns its printable form.
std::string takePrintable(std::string_view &text, std::string_view lineFeed) {
    const std::size_t length = characterLength(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    text.remove_prefix(character.size());
    if (character == "\n") {
        return std::string(lineFeed);
    }
    if (length == 0 || (length == 1 && steersTerminals(codePoint(character)))) {
        return fmt::format("\\x{:02x}", static_cast<unsigned char>(character[0]));
    }
    return steersTerminals(codePoint(character)) ? fmt::format("\\u{:04x}", codePoint(character))
                                                 : std::string(character);
}

} // namespace

std::string printable(std::string_view text, std::string_view lineFeed) {
    std::string result;
    while (!text.empty()) {
        result += takePrintable(text, lineFeed);
    }
    return result;
}

std::string shortened(std::string_view text, std::size_t columns) {
    const std::size_t mostBytes = 16 * columns; // Bounds the number of combining marks, which have no width.
    std::string result;
    std::size_t width = 0;
    while (!text.empty()) {
        const std::string character = takePrintable(text, lineFeedWrittenOut);
        result += character;
        width += UnicodeText::displayWidth(character);
        if (width > columns || result.size() > mostBytes) {
            result.resize(UnicodeText::lengthWithin(result, columns - 1));
            return result + "…";
        }
    }
    return result;
}

std::string padded(std::string text, std::size_t columns) {
    const std::size_t width = UnicodeText::displayWidth(text);
    text.append(columns - std::min(width, columns), ' ');
    return text;
}

} // namespace velmar
