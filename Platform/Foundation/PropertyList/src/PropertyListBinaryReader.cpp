#include "PropertyListBinaryReader.h"

#include "PropertyListText.h"

#include <fmt/format.h>
#include <unicode/utf16.h>

#include <bit>
#include <cmath>
#include <limits>

namespace velmar {

static constexpr std::size_t headerSize = 8;
static constexpr std::size_t trailerSize = 32;
// Estimated bookkeeping of an allocation, in bytes.
static constexpr std::size_t allocationOverhead = 16;
// Short ASCII texts are views of the file and too small to be charged.
static constexpr std::size_t uncountedBytes = 15;

// Upper half of the marker byte.
static constexpr std::uint8_t simpleType = 0x0;
static constexpr std::uint8_t integerType = 0x1;
static constexpr std::uint8_t realType = 0x2;
static constexpr std::uint8_t dateType = 0x3;
static constexpr std::uint8_t dataType = 0x4;
static constexpr std::uint8_t asciiType = 0x5;
static constexpr std::uint8_t utf16Type = 0x6;
static constexpr std::uint8_t arrayType = 0xA;
static constexpr std::uint8_t dictionaryType = 0xD;

void PropertyListBinaryReader::fail(std::string_view reason, std::size_t offset) const {
    throw PropertyListError(reason, offset, 0);
}

PropertyListDocument PropertyListBinaryReader::read() {
    readTrailer();
    unreadBytes_ = bytes_.size();
    budget_ = PropertyListDocument::maximumSharedBytes;
    wasRead_.resize(objectCount_);
    isOpen_.resize(objectCount_);
    readTree();
    return builder_.takeDocument(PropertyListDocument::Form::Binary);
}

void PropertyListBinaryReader::readTrailer() {
    const std::string_view text(reinterpret_cast<const char *>(bytes_.data()), bytes_.size());
    if (!text.starts_with("bplist00")) {
        fail("this version of the binary form is not supported", 0);
    }
    if (bytes_.size() < headerSize + trailerSize + 1) {
        fail("the file ends too early", bytes_.size());
    }
    const std::size_t trailer = bytes_.size() - trailerSize;
    offsetWidth_ = number(trailer + 6, 1);
    referenceWidth_ = number(trailer + 7, 1);
    objectCount_ = number(trailer + 8, 8);
    rootIndex_ = number(trailer + 16, 8);
    const std::uint64_t table = number(trailer + 24, 8);
    if (offsetWidth_ < 1 || offsetWidth_ > 8 || referenceWidth_ < 1 || referenceWidth_ > 8 ||
        table <= headerSize || table > trailer || objectCount_ == 0 || rootIndex_ >= objectCount_ ||
        (trailer - table) % offsetWidth_ != 0 || (trailer - table) / offsetWidth_ != objectCount_) {
        fail("the trailer does not fit the file", trailer);
    }
    tableOffset_ = table;
}

void PropertyListBinaryReader::readTree() {
    readObject(rootIndex_);
    while (!frames_.empty()) {
        Frame &frame = frames_.back();
        if (frame.next == frame.object.count) {
            builder_.close();
            isOpen_[frame.index] = false;
            frames_.pop_back();
            continue;
        }
        const std::size_t place = frame.next++;
        if (!frame.isDictionary) {
            readObject(member(frame, place));
            continue;
        }
        const std::uint64_t keyIndex = member(frame, place);
        const std::uint64_t valueIndex = member(frame, frame.object.count + place);
        builder_.addKey(key(keyIndex), static_cast<std::uint32_t>(objectAt(keyIndex).offset));
        readObject(valueIndex);
    }
}

void PropertyListBinaryReader::readObject(std::uint64_t index) {
    const Object object = objectAt(index);
    if (builder_.isFull()) {
        fail(fmt::format("there are more than {} values", PropertyList::maximumValues), object.offset);
    }
    if (object.type == arrayType || object.type == dictionaryType) {
        openContainer(index, object);
    } else {
        charge(index, object);
        builder_.addValue(scalar(object), static_cast<std::uint32_t>(object.offset));
    }
}

void PropertyListBinaryReader::openContainer(std::uint64_t index, const Object &object) {
    const bool isDictionary = object.type == dictionaryType;
    if (isOpen_[index]) {
        fail("a value contains itself", object.offset);
    }
    if (builder_.isAtMaximumDepth()) {
        fail(fmt::format("the values are nested more than {} deep", PropertyList::maximumDepth),
             object.offset);
    }
    // Only checks that all references lie within the file; the members are counted one by one.
    static_cast<void>(contents(object, isDictionary ? 2 * referenceWidth_ : referenceWidth_));
    isOpen_[index] = true;
    frames_.push_back(Frame{index, object, 0, isDictionary});
    if (isDictionary) {
        builder_.openDictionary(static_cast<std::uint32_t>(object.offset));
    } else {
        builder_.openArray(static_cast<std::uint32_t>(object.offset));
    }
}

PropertyListBinaryReader::Object PropertyListBinaryReader::objectAt(std::uint64_t index) const {
    const std::size_t entry = tableOffset_ + index * offsetWidth_;
    const std::uint64_t offset = number(entry, offsetWidth_);
    if (offset < headerSize || offset >= tableOffset_) {
        fail("an object is outside of the file", entry);
    }
    const auto marker = std::to_integer<std::uint8_t>(bytes_[offset]);
    Object object{offset, offset + 1, marker & 0x0FU, static_cast<std::uint8_t>(marker >> 4)};
    if (object.type <= dateType || object.count != 0x0F) {
        return object;
    }
    // Counts above 14 follow as an integer object.
    if (object.contents >= tableOffset_) {
        fail("an object is outside of the file", offset);
    }
    const auto countMarker = std::to_integer<std::uint8_t>(bytes_[object.contents]);
    const std::size_t width = std::size_t{1} << (countMarker & 0x0F);
    if (countMarker >> 4 != integerType || width > 8 || tableOffset_ - object.contents - 1 < width) {
        fail("the count of an object is not valid", offset);
    }
    object.count = number(object.contents + 1, width);
    object.contents += 1 + width;
    return object;
}

std::uint64_t PropertyListBinaryReader::member(const Frame &frame, std::size_t place) const {
    const std::size_t reference = frame.object.contents + place * referenceWidth_;
    const std::uint64_t index = number(reference, referenceWidth_);
    if (index >= objectCount_) {
        fail("a reference leads to no object", reference);
    }
    return index;
}

std::span<const std::byte> PropertyListBinaryReader::contents(const Object &object, std::size_t width) const {
    if (object.count > (tableOffset_ - object.contents) / width) {
        fail("an object is outside of the file", object.offset);
    }
    return bytes_.subspan(object.contents, object.count * width);
}

std::uint64_t PropertyListBinaryReader::number(std::size_t offset, std::size_t width) const noexcept {
    std::uint64_t value = 0;
    for (const std::byte byte : bytes_.subspan(offset, width)) {
        value = value << 8 | std::to_integer<std::uint64_t>(byte);
    }
    return value;
}

// Charges texts and data, the only unbounded memory, since the number of values is limited. The first read of
// each object is free as long as all of them together don't exceed the file: objects of a valid file don't
// overlap.
void PropertyListBinaryReader::charge(std::uint64_t index, const Object &object) {
    constexpr std::size_t longestUnit = 3; // bytes of UTF-8 per UTF-16 unit
    const bool isUtf16 = object.type == utf16Type;
    if (!isUtf16 && object.type != asciiType && object.type != dataType) {
        return;
    }
    const std::size_t stored = contents(object, isUtf16 ? 2 : 1).size();
    const std::size_t needed = isUtf16 ? object.count * longestUnit : stored;
    if (needed <= (object.type == asciiType ? uncountedBytes : 0)) {
        return;
    }
    if (!wasRead_[index] && stored <= unreadBytes_) {
        wasRead_[index] = true;
        unreadBytes_ -= stored;
        return;
    }
    if (needed + allocationOverhead > budget_) {
        fail("shared values expand to more than is allowed", object.offset);
    }
    budget_ -= needed + allocationOverhead;
}

std::string_view PropertyListBinaryReader::key(std::uint64_t index) {
    const Object object = objectAt(index);
    charge(index, object);
    if (object.type == asciiType) {
        return asciiString(object);
    }
    if (object.type == utf16Type) {
        return utf16String(object);
    }
    fail("a key is not a string", object.offset);
}

PropertyListValue PropertyListBinaryReader::scalar(const Object &object) {
    switch (object.type) {
    case simpleType:
        return simple(object);
    case integerType:
        return integer(object);
    case realType:
        return PropertyListValue(real(object));
    case dateType: {
        const double seconds = object.count == 3 ? real(object) : std::numeric_limits<double>::quiet_NaN();
        if (!std::isfinite(seconds)) {
            fail("a date is not valid", object.offset);
        }
        return PropertyListValue(PropertyListValue::Date{seconds});
    }
    case dataType:
        return PropertyListValue(contents(object, 1));
    case asciiType:
        return PropertyListValue(asciiString(object));
    case utf16Type:
        return PropertyListValue(utf16String(object));
    default:
        fail(fmt::format("objects of the type 0x{:X} are not supported", object.type), object.offset);
    }
}

PropertyListValue PropertyListBinaryReader::simple(const Object &object) const {
    constexpr std::size_t falseValue = 0x8;
    constexpr std::size_t trueValue = 0x9;
    if (object.count != falseValue && object.count != trueValue) {
        fail("null and fill are no values of a property list", object.offset);
    }
    return PropertyListValue(object.count == trueValue);
}

PropertyListValue PropertyListBinaryReader::integer(const Object &object) const {
    constexpr std::size_t widest = 4; // log2 of 16 bytes
    const std::size_t width = std::size_t{1} << object.count;
    if (object.count > widest || tableOffset_ - object.contents < width) {
        fail("an integer is not valid", object.offset);
    }
    // Integers of fewer than eight bytes are unsigned.
    if (width < 8) {
        return PropertyListValue(number(object.contents, width));
    }
    if (width == 8) {
        return PropertyListValue(static_cast<std::int64_t>(number(object.contents, width)));
    }
    const std::uint64_t upper = number(object.contents, 8);
    const std::uint64_t lower = number(object.contents + 8, 8);
    const bool isNegative = upper == std::numeric_limits<std::uint64_t>::max() && lower >> 63 == 1;
    if (upper != 0 && !isNegative) {
        fail("an integer is not between -2^63 and 2^64 - 1", object.offset);
    }
    return isNegative ? PropertyListValue(static_cast<std::int64_t>(lower)) : PropertyListValue(lower);
}

double PropertyListBinaryReader::real(const Object &object) const {
    const std::size_t width = std::size_t{1} << object.count;
    if ((width != 4 && width != 8) || tableOffset_ - object.contents < width) {
        fail("a real number is not valid", object.offset);
    }
    const std::uint64_t bits = number(object.contents, width);
    return width == 4 ? std::bit_cast<float>(static_cast<std::uint32_t>(bits)) : std::bit_cast<double>(bits);
}

std::string_view PropertyListBinaryReader::asciiString(const Object &object) const {
    const std::span<const std::byte> bytes = contents(object, 1);
    const std::string_view text(reinterpret_cast<const char *>(bytes.data()), bytes.size());
    if (!isAscii(text)) {
        fail("an ASCII string has other characters", object.offset);
    }
    return text;
}

std::string_view PropertyListBinaryReader::utf16String(const Object &object) {
    const std::size_t units = contents(object, 2).size() / 2;
    const auto unit = [&](std::size_t place) {
        return static_cast<char16_t>(number(object.contents + 2 * place, 2));
    };
    std::string text;
    for (std::size_t place = 0; place < units; ++place) {
        char32_t character = unit(place);
        if (U16_IS_SURROGATE(character)) {
            const char16_t trail = place + 1 < units ? unit(place + 1) : u'\0';
            if (!U16_IS_SURROGATE_LEAD(character) || !U16_IS_TRAIL(trail)) {
                fail("a UTF-16 string has half of a surrogate pair", object.offset);
            }
            character = static_cast<char32_t>(U16_GET_SUPPLEMENTARY(character, trail));
            ++place;
        }
        appendUtf8(text, character);
    }
    return builder_.keep(text);
}

} // namespace velmar
