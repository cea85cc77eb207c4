#pragma once

#include "PropertyListBuilder.h"

#include <Foundation/PropertyListDocument.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Reads a binary property list: a header, the objects, a table of their offsets, and a trailer of 32 bytes
/// with the position of the table and the width of its numbers. Arrays and dictionaries refer to their
/// members by index in the table. All functions throw PropertyListError.
class PropertyListBinaryReader {
public:
    /// `bytes` must outlive the document and be smaller than 4 GiB.
    explicit PropertyListBinaryReader(std::span<const std::byte> bytes)
        : bytes_(bytes), builder_(bytes.size()) {}

    [[nodiscard]] PropertyListDocument read();

private:
    /// Position and decoded marker of an object.
    struct Object {
        std::size_t offset;
        std::size_t contents; ///< Offset of the data after marker and count.
        std::size_t count;    ///< Number of bytes, characters or members; for numbers log2 of their width.
        std::uint8_t type;    ///< Upper half of the marker.
    };

    /// A container during the reading of its members.
    struct Frame {
        std::uint64_t index;
        Object object;
        std::size_t next;
        bool isDictionary;
    };

    void readTrailer();
    void readTree();
    void readObject(std::uint64_t index);
    void openContainer(std::uint64_t index, const Object &object);
    [[nodiscard]] Object objectAt(std::uint64_t index) const;
    [[nodiscard]] std::uint64_t member(const Frame &frame, std::size_t number) const;
    [[nodiscard]] PropertyListValue scalar(const Object &object);
    [[nodiscard]] PropertyListValue simple(const Object &object) const;
    [[nodiscard]] PropertyListValue integer(const Object &object) const;
    [[nodiscard]] double real(const Object &object) const;
    [[nodiscard]] std::string_view asciiString(const Object &object) const;
    [[nodiscard]] std::string_view utf16String(const Object &object);
    [[nodiscard]] std::string_view key(std::uint64_t index);
    [[nodiscard]] std::span<const std::byte> contents(const Object &object, std::size_t width) const;
    [[nodiscard]] std::uint64_t number(std::size_t offset, std::size_t width) const noexcept;
    void charge(std::uint64_t index, const Object &object);
    [[noreturn]] void fail(std::string_view reason, std::size_t offset) const;

    std::span<const std::byte> bytes_;
    std::size_t offsetWidth_ = 0;
    std::size_t referenceWidth_ = 0;
    std::size_t tableOffset_ = 0;
    std::uint64_t objectCount_ = 0;
    std::uint64_t rootIndex_ = 0;
    std::size_t unreadBytes_ = 0; ///< Bytes of texts and data that may still be read for the first time.
    std::size_t budget_ = 0;      ///< Bytes that repeated reads may still take.
    std::vector<bool> wasRead_;
    std::vector<bool> isOpen_;
    std::vector<Frame> frames_;
    PropertyListBuilder builder_;
};

} // namespace velmar
