#include <Foundation/UnicodeText.h>

#include "Utf8Decoding.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <stdexcept>

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>

namespace velmar::UnicodeText {

namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);

bool isAsciiByte(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

bool isAsciiWord(const char *bytes) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return (word & 0x8080808080808080U) == 0;
}

void throwIfFailed(UErrorCode status) {
    if (status == U_MEMORY_ALLOCATION_ERROR) {
        throw std::bad_alloc();
    }
    if (U_FAILURE(status)) {
        throw std::runtime_error(u_errorName(status));
    }
}

icu::StringPiece pieceOf(std::string_view text) {
    if (text.size() > static_cast<std::size_t>(std::numeric_limits<std::int32_t>::max())) {
        throw std::length_error("The text is too long.");
    }
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

const icu::Normalizer2 &composer() {
    static const icu::Normalizer2 &instance = []() -> const icu::Normalizer2 & {
        UErrorCode status = U_ZERO_ERROR;
        const icu::Normalizer2 *found = icu::Normalizer2::getNFCInstance(status);
        throwIfFailed(status);
        return *found;
    }();
    return instance;
}

// The composed form of a text. Copies the text only if it is not composed already.
class Composed {
public:
    explicit Composed(std::string_view text) : view_(text) {
        if (isAscii(text)) {
            return;
        }
        UErrorCode status = U_ZERO_ERROR;
        const bool isComposed = composer().isNormalizedUTF8(pieceOf(text), status) != 0;
        throwIfFailed(status);
        if (isComposed) {
            return;
        }
        icu::StringByteSink sink(&storage_);
        composer().normalizeUTF8(0, pieceOf(text), sink, nullptr, status);
        throwIfFailed(status);
        view_ = storage_;
    }
    Composed(const Composed &) = delete;
    Composed &operator=(const Composed &) = delete;

    [[nodiscard]] std::string_view view() const { return view_; }

private:
    std::string storage_;
    std::string_view view_;
};

// Returns true if a cut at this position doesn't separate a character from its combining marks.
bool isBoundary(std::string_view composed, std::size_t position) {
    if (position == 0 || position >= composed.size() || isAsciiByte(composed[position])) {
        return true;
    }
    return composer().hasBoundaryBefore(decodeUtf8(composed, position).value) != 0;
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

bool isWhiteSpace(const DecodedCharacter &character) {
    return character.value >= 0 && u_isUWhiteSpace(character.value) != 0;
}

template <class Map>
std::string mapped(std::string_view text, char first, char last, const Map &map) {
    std::string result;
    if (isAscii(text)) {
        result = text;
        for (char &character : result) {
            if (character >= first && character <= last) {
                character = static_cast<char>(character ^ 0x20);
            }
        }
        return result;
    }
    UErrorCode status = U_ZERO_ERROR;
    icu::StringByteSink sink(&result);
    map(pieceOf(text), sink, status);
    throwIfFailed(status);
    return result;
}

std::size_t columnsOf(UChar32 character) {
    static constexpr UChar32 softHyphen = 0xAD;                               // a visible format character
    const bool isWithinSyllable = character >= 0x1160 && character <= 0x11FF; // Hangul vowels and finals
    const std::uint32_t shapeless = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK | U_GC_CC_MASK;
    if (character < 0 || character == softHyphen) {
        return 1;
    }
    if (isWithinSyllable || (U_GET_GC_MASK(character) & shapeless) != 0) {
        return 0;
    }
    const auto width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
}

} // namespace

bool isAscii(std::string_view text) noexcept {
    while (text.size() >= wordSize && isAsciiWord(text.data())) {
        text.remove_prefix(wordSize);
    }
    return std::all_of(text.begin(), text.end(), isAsciiByte);
}

bool isValidUtf8(std::string_view text) noexcept {
    while (!text.empty()) {
        if (text.size() >= wordSize && isAsciiWord(text.data())) {
            text.remove_prefix(wordSize);
            continue;
        }
        const DecodedCharacter character = decodeUtf8(text, 0);
        if (character.value < 0) {
            return false;
        }
        text.remove_prefix(character.length);
    }
    return true;
}

bool isEqual(std::string_view left, std::string_view right) {
    if (left == right) {
        return true;
    }
    if (isAscii(left) && isAscii(right)) {
        return false;
    }
    return Composed(left).view() == Composed(right).view();
}

std::weak_ordering compare(std::string_view left, std::string_view right) {
    // UTF-8 bytes sort like code points.
    return Composed(left).view() <=> Composed(right).view();
}

bool contains(std::string_view text, std::string_view part) {
    const Composed composedText(text);
    const Composed composedPart(part);
    const std::string_view in = composedText.view();
    const std::string_view wanted = composedPart.view();
    for (std::size_t at = in.find(wanted); at != std::string_view::npos; at = in.find(wanted, at + 1)) {
        if (wanted.empty() || (isBoundary(in, at) && isBoundary(in, at + wanted.size()))) {
            return true;
        }
    }
    return false;
}

bool hasPrefix(std::string_view text, std::string_view prefix) {
    const Composed composedText(text);
    const Composed composedPrefix(prefix);
    return composedText.view().starts_with(composedPrefix.view()) &&
           isBoundary(composedText.view(), composedPrefix.view().size());
}

bool hasSuffix(std::string_view text, std::string_view suffix) {
    const Composed composedText(text);
    const Composed composedSuffix(suffix);
    return composedText.view().ends_with(composedSuffix.view()) &&
           isBoundary(composedText.view(), composedText.view().size() - composedSuffix.view().size());
}

std::string_view trimmed(std::string_view text) noexcept {
    while (!text.empty()) {
        const DecodedCharacter first = decodeUtf8(text, 0);
        if (!isWhiteSpace(first)) {
            break;
        }
        text.remove_prefix(first.length);
    }
    while (!text.empty()) {
        std::size_t start = text.size() - 1;
        while (start > 0 && text.size() - start < 4 && isContinuation(text[start])) {
            --start;
        }
        const DecodedCharacter last = decodeUtf8(text, start);
        if (!isWhiteSpace(last) || start + last.length != text.size()) {
            break;
        }
        text.remove_suffix(last.length);
    }
    return text;
}

std::string composed(std::string_view text) {
    return std::string(Composed(text).view());
}

std::string lowercased(std::string_view text) {
    return mapped(text, 'A', 'Z', [](icu::StringPiece piece, icu::ByteSink &sink, UErrorCode &status) {
        icu::CaseMap::utf8ToLower("", 0, piece, sink, nullptr, status);
    });
}

std::string uppercased(std::string_view text) {
    return mapped(text, 'a', 'z', [](icu::StringPiece piece, icu::ByteSink &sink, UErrorCode &status) {
        icu::CaseMap::utf8ToUpper("", 0, piece, sink, nullptr, status);
    });
}

std::size_t displayWidth(std::string_view text) {
    std::size_t columns = 0;
    for (std::size_t at = 0; at < text.size();) {
        const DecodedCharacter character = decodeUtf8(text, at);
        columns += columnsOf(character.value);
        at += character.length;
    }
    return columns;
}

std::size_t lengthWithin(std::string_view text, std::size_t columns) {
    std::size_t at = 0;
    while (at < text.size()) {
        const DecodedCharacter character = decodeUtf8(text, at);
        const std::size_t taken = columnsOf(character.value);
        if (taken > columns) {
            break;
        }
        columns -= taken;
        at += character.length;
    }
    return at;
}

} // namespace velmar::UnicodeText
