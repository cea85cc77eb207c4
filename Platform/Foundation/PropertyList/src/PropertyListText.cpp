#include "PropertyListText.h"

#include <fmt/format.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

namespace velmar {

static constexpr std::size_t blockSize = 64;

// Branchless, so that the compiler vectorises it.
static bool isPlainBlock(const char *block) noexcept {
    unsigned char bad = 0;
    for (std::size_t index = 0; index < blockSize; ++index) {
        const auto byte = static_cast<unsigned char>(block[index]);
        const bool isWhiteSpace = (byte == '\t') | (byte == '\n') | (byte == '\r');
        bad |= static_cast<unsigned char>((byte >= 0x80) | ((byte < 0x20) & !isWhiteSpace));
    }
    return bad == 0;
}

bool isAscii(std::string_view text) noexcept {
    return std::ranges::all_of(text,
                               [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

bool isCharacterOfXml(char32_t character) noexcept {
    if (character < 0x20) {
        return character == '\t' || character == '\n' || character == '\r';
    }
    return (character < 0xD800 || character > 0xDFFF) && character != 0xFFFE && character != 0xFFFF &&
           character <= 0x10FFFF;
}

std::size_t firstBadByte(std::string_view text, Characters allowed) noexcept {
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(text.data());
    std::size_t position = 0;
    while (position < text.size()) {
        std::size_t blockEnd = text.size();
        if (text.size() - position >= blockSize) {
            blockEnd = position + blockSize;
            if (isPlainBlock(text.data() + position)) {
                position = blockEnd;
                continue;
            }
        }
        while (position < blockEnd) {
            const std::size_t start = position;
            UChar32 character = 0;
            U8_NEXT(bytes, position, text.size(), character);
            if (character < 0 ||
                (allowed == Characters::OfXml && !isCharacterOfXml(static_cast<char32_t>(character)))) {
                return start;
            }
        }
    }
    return text.npos;
}

std::string reasonOfBadByte(std::string_view text, std::size_t offset) {
    const auto *bytes = reinterpret_cast<const std::uint8_t *>(text.data());
    std::size_t position = offset;
    UChar32 character = 0;
    U8_NEXT(bytes, position, text.size(), character);
    if (character < 0) {
        return "the text is not UTF-8";
    }
    return fmt::format("the character U+{:04X} is not allowed in XML", static_cast<std::uint32_t>(character));
}

void appendUtf8(std::string &text, char32_t character) {
    std::uint8_t buffer[U8_MAX_LENGTH];
    std::size_t length = 0;
    U8_APPEND_UNSAFE(buffer, length, character);
    text.append(reinterpret_cast<const char *>(buffer), length);
}

std::string shortened(std::string_view text) {
    constexpr std::size_t limit = 40;
    if (text.size() <= limit) {
        return std::string(text);
    }
    std::size_t end = limit;
    while (end > 0 && U8_IS_TRAIL(static_cast<std::uint8_t>(text[end]))) {
        --end;
    }
    return std::string(text.substr(0, end)) + "...";
}

} // namespace velmar
