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

/// Builds a document from the events of a reader, without recursion, and records duplicate keys. The reader
/// must follow the grammar by checking expected() first. Texts are not copied: they must be views of the
/// source bytes or results of keep().
class PropertyListBuilder {
public:
    enum class Expected : std::uint8_t {
        Root,    ///< The root value.
        Element, ///< A value or the end of an array.
        Key,     ///< A key or the end of a dictionary.
        Value,   ///< The value of the last key.
        Nothing, ///< The root is complete.
    };

    /// `size` is the size of the source bytes.
    explicit PropertyListBuilder(std::size_t size);

    [[nodiscard]] Expected expected() const noexcept { return expected_; }
    [[nodiscard]] bool isOpenDictionary() const noexcept { return frames_.back().isDictionary; }
    [[nodiscard]] bool isOpen() const noexcept { return !frames_.empty(); }
    [[nodiscard]] bool isAtMaximumDepth() const noexcept {
        return frames_.size() >= PropertyList::maximumDepth;
    }
    /// Returns true if no further value fits into PropertyList::maximumValues.
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

    /// Copies text or data into the memory of the document.
    [[nodiscard]] std::string_view keep(std::string_view text);
    [[nodiscard]] PropertyListValue::Data keep(PropertyListValue::Data data);

    /// Returns the key that is waiting for its value.
    [[nodiscard]] std::string_view lastKey() const noexcept { return entries_.back().key.text(); }

    /// Returns the document. Requires Expected::Nothing. `text` is the source of the XML form.
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

    // Children of all open containers, the innermost last. A completed container is copied in its exact size.
    std::vector<PropertyListValue> values_;
    std::vector<Entry> entries_;
    std::vector<Frame> frames_;
    PropertyListDocument document_;
    std::size_t bytesOfDuplicates_ = 0;
    std::size_t valueCount_ = 0; // Number of values, not counting open containers.
    Expected expected_ = Expected::Root;
};

} // namespace velmar
