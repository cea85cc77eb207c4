#include "PropertyListText.h"

#include <Foundation/PropertyList.h>

#include <fmt/format.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <unordered_map>

namespace velmar {

namespace {

// Returns log2 of the smallest power-of-two width in bytes that holds the number.
std::size_t exponentOfWidth(std::uint64_t number) noexcept {
    return number <= 0xFF ? 0 : number <= 0xFFFF ? 1 : number <= 0xFFFFFFFF ? 2 : 3;
}

std::size_t widthOf(std::uint64_t number) noexcept {
    return std::size_t{1} << exponentOfWidth(number);
}

void appendNumber(std::string &bytes, std::uint64_t number, std::size_t width) {
    for (std::size_t byte = width; byte > 0; --byte) {
        bytes += static_cast<char>(number >> (8 * (byte - 1)) & 0xFF);
    }
}

class BinaryWriter {
public:
    std::vector<std::byte> write(const PropertyList &root);

private:
    struct Object {
        std::string bytes;
        std::vector<std::uint32_t> members;
    };

    std::uint32_t add(const PropertyList &value);
    std::uint32_t addContainer(std::uint8_t type, const PropertyList &value);
    std::uint32_t addUnique(std::string bytes);
    static std::string scalar(const PropertyList &value);
    static std::string integer(std::uint64_t value);
    static std::string eightBytes(std::uint8_t marker, std::uint64_t bits);
    static std::string string(std::string_view text);
    static std::string marker(std::uint8_t type, std::size_t count);
    [[noreturn]] static void fail(std::string_view reason) {
        throw PropertyListError(reason, PropertyListError::noOffset, 0);
    }

    std::vector<Object> objects_;
    std::unordered_map<std::string, std::uint32_t> indexes_;
    std::size_t depth_ = 0;
};

std::vector<std::byte> BinaryWriter::write(const PropertyList &root) {
    add(root);
    std::string bytes = "bplist00";
    const std::size_t referenceWidth = widthOf(objects_.size() - 1);
    std::vector<std::uint64_t> offsets;
    offsets.reserve(objects_.size());
    for (const Object &object : objects_) {
        offsets.push_back(bytes.size());
        bytes += object.bytes;
        for (const std::uint32_t member : object.members) {
            appendNumber(bytes, member, referenceWidth);
        }
    }
    const std::size_t table = bytes.size();
    const std::size_t offsetWidth = widthOf(table);
    for (const std::uint64_t offset : offsets) {
        appendNumber(bytes, offset, offsetWidth);
    }
    constexpr std::size_t unused = 6;
    appendNumber(bytes, 0, unused);
    appendNumber(bytes, offsetWidth, 1);
    appendNumber(bytes, referenceWidth, 1);
    appendNumber(bytes, objects_.size(), 8);
    appendNumber(bytes, 0, 8); // index of the root
    appendNumber(bytes, table, 8);
    const auto written = std::as_bytes(std::span(bytes));
    return {written.begin(), written.end()};
}

std::uint32_t BinaryWriter::add(const PropertyList &value) {
    constexpr std::uint8_t arrayType = 0xA;
    constexpr std::uint8_t dictionaryType = 0xD;
    switch (value.kind()) {
    case PropertyList::Kind::Array:
        return addContainer(arrayType, value);
    case PropertyList::Kind::Dictionary:
        return addContainer(dictionaryType, value);
    default:
        return addUnique(scalar(value));
    }
}

std::uint32_t BinaryWriter::addContainer(std::uint8_t type, const PropertyList &value) {
    if (++depth_ > PropertyList::maximumDepth) {
        fail(fmt::format("the values are nested more than {} deep", PropertyList::maximumDepth));
    }
    const auto index = static_cast<std::uint32_t>(objects_.size());
    objects_.emplace_back();
    std::size_t count = 0;
    std::vector<std::uint32_t> members;
    if (const PropertyList::Array *array = value.array()) {
        count = array->size();
        for (const PropertyList &element : *array) {
            members.push_back(add(element));
        }
    } else {
        const PropertyList::Dictionary &dictionary = *value.dictionary();
        count = dictionary.size();
        for (const auto &entry : dictionary) {
            members.push_back(addUnique(string(entry.key)));
        }
        for (const auto &entry : dictionary) {
            members.push_back(add(entry.value));
        }
    }
    objects_[index] = {marker(type, count), std::move(members)};
    --depth_;
    return index;
}

std::uint32_t BinaryWriter::addUnique(std::string bytes) {
    const auto [place, isNew] =
        indexes_.try_emplace(std::move(bytes), static_cast<std::uint32_t>(objects_.size()));
    if (isNew) {
        objects_.push_back({place->first, {}});
    }
    return place->second;
}

std::string BinaryWriter::scalar(const PropertyList &value) {
    constexpr std::uint8_t dataType = 0x4;
    constexpr std::uint8_t dateMarker = 0x33;
    constexpr std::uint8_t realMarker = 0x23;
    if (const bool *boolean = value.boolean()) {
        return *boolean ? "\x09" : "\x08";
    }
    if (const std::int64_t *number = value.integer()) {
        return integer(static_cast<std::uint64_t>(*number));
    }
    if (const std::uint64_t *number = value.unsignedInteger()) {
        std::string bytes = "\x14";
        appendNumber(bytes, 0, 8);
        appendNumber(bytes, *number, 8);
        return bytes;
    }
    if (const double *real = value.real()) {
        return eightBytes(realMarker, std::bit_cast<std::uint64_t>(*real));
    }
    if (const PropertyList::Date *date = value.date()) {
        if (!std::isfinite(date->secondsSinceReferenceDate)) {
            fail("a date is not a number");
        }
        return eightBytes(dateMarker, std::bit_cast<std::uint64_t>(date->secondsSinceReferenceDate));
    }
    if (const PropertyList::Data *data = value.data()) {
        std::string bytes = marker(dataType, data->bytes.size());
        bytes.append(reinterpret_cast<const char *>(data->bytes.data()), data->bytes.size());
        return bytes;
    }
    return string(*value.string());
}

// Negative numbers have the upper bit set and therefore take eight bytes.
std::string BinaryWriter::integer(std::uint64_t value) {
    const std::size_t exponent = exponentOfWidth(value);
    std::string bytes(1, static_cast<char>(0x10 | exponent));
    appendNumber(bytes, value, std::size_t{1} << exponent);
    return bytes;
}

std::string BinaryWriter::eightBytes(std::uint8_t marker, std::uint64_t bits) {
    std::string bytes(1, static_cast<char>(marker));
    appendNumber(bytes, bits, 8);
    return bytes;
}

std::string BinaryWriter::string(std::string_view text) {
    constexpr std::uint8_t asciiType = 0x5;
    constexpr std::uint8_t utf16Type = 0x6;
    if (firstBadByte(text, Characters::All) != text.npos) {
        fail("a text is not UTF-8");
    }
    if (isAscii(text)) {
        return marker(asciiType, text.size()).append(text);
    }
    std::string units;
    const auto *source = reinterpret_cast<const std::uint8_t *>(text.data());
    for (std::size_t position = 0; position < text.size();) {
        std::uint32_t character = 0;
        U8_NEXT_UNSAFE(source, position, character);
        if (character > 0xFFFF) {
            character -= 0x10000;
            appendNumber(units, 0xD800 | character >> 10, 2);
            character = 0xDC00 | (character & 0x3FF);
        }
        appendNumber(units, character, 2);
    }
    return marker(utf16Type, units.size() / 2).append(units);
}

std::string BinaryWriter::marker(std::uint8_t type, std::size_t count) {
    constexpr std::size_t countFollows = 0xF;
    std::string bytes(1, static_cast<char>(std::size_t{type} << 4 | std::min(count, countFollows)));
    if (count >= countFollows) {
        bytes += integer(count);
    }
    return bytes;
}

} // namespace

std::vector<std::byte> PropertyList::binary() const {
    return BinaryWriter().write(*this);
}

} // namespace velmar
