#pragma once

#include <Foundation/PropertyListDocument.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Puts a document together from what a reader meets, in its order, without recursion, and notes keys given
/// twice. The reader keeps to the grammar: it asks expected() first. Texts are not copied: they are parts of
/// the bytes, or kept.
class PropertyListBuilder {
public:
    enum class Expected : std::uint8_t {
        Root,    ///< The one value.
        Element, ///< A value or the end of an array.
        Key,     ///< A key or the end of a dictionary.
        Value,   ///< The value of the key before.
        Nothing, ///< The root is complete.
    };

    /// `size` is that of the bytes to be read.
    explicit PropertyListBuilder(std::size_t size);

    [[nodiscard]] Expected expected() const noexcept { return expected_; }
    [[nodiscard]] bool isOpenDictionary() const noexcept { return frames_.back().isDictionary; }
    [[nodiscard]] bool isOpen() const noexcept { return !frames_.empty(); }
    [[nodiscard]] bool isAtMaximumDepth() const noexcept {
        return frames_.size() >= PropertyList::maximumDepth;
    }
    /// Whether one more value would be more than PropertyList::maximumValues.
    [[nodiscard]] bool isFull() const noexcept {
        return valueCount_ + frames_.size() >= PropertyList::maximumValues;
    }

    void openArray(std::uint32_t offset) { open(offset, false); }
    void openDictionary(std::uint32_t offset) { open(offset, true); }
    void addKey(std::string_view key, std::uint32_t offset) {
        entries_.push_back(Entry{key, offset, PropertyListValue()});
        expected_ = Expected::Value;
    }
    void addValue(PropertyListValue value, std::uint32_t offset);
    void close();

    /// Copies a text or data into the memory of the document.
    [[nodiscard]] std::string_view keep(std::string_view text);
    [[nodiscard]] PropertyListValue::Data keep(PropertyListValue::Data data);

    /// The key that waits for its value.
    [[nodiscard]] std::string_view lastKey() const noexcept { return entries_.back().key.text(); }

    /// Once nothing is expected any more. `text` is that of the XML form.
    [[nodiscard]] PropertyListDocument takeDocument(PropertyListDocument::Form form,
                                                    std::string_view text = {});

private:
    using Entry = PropertyListValue::Entry;
    using DuplicateKey = PropertyListDocument::DuplicateKey;

    struct Frame {
        std::size_t firstValue;
        std::size_t firstEntry;
        std::uint32_t offset;
        bool isDictionary;
    };

    void open(std::uint32_t offset, bool isDictionary);
    template <class T>
    std::span<const T> keepFrom(std::vector<T> &stack, std::size_t first);
    void removeDuplicates(std::size_t firstEntry);
    void noteDuplicate(const Entry &later);
    [[nodiscard]] bool hasDuplicates(std::size_t firstEntry) const;
    [[nodiscard]] std::string pathOfLastFrame() const;

    // The children of all open containers, the innermost last, so that a finished one is kept in its exact
    // size.
    std::vector<PropertyListValue> values_;
    std::vector<Entry> entries_;
    std::vector<Frame> frames_;
    PropertyListDocument document_;
    std::size_t bytesOfDuplicates_ = 0;
    std::size_t valueCount_ = 0; // Without the open containers.
    Expected expected_ = Expected::Root;
};

} // namespace velmar
