#pragma once

#include <Foundation/PropertyList.h>

#include <string>
#include <vector>

namespace velmar {

/// Puts a tree together from what a reader meets, in its order, without recursion, and notes keys given
/// twice. The reader keeps to the grammar: it asks expected() first.
class PropertyListBuilder {
public:
    enum class Expected {
        Root,    ///< The one value.
        Element, ///< A value or the end of an array.
        Key,     ///< A key or the end of a dictionary.
        Value,   ///< The value of the key before.
        Nothing, ///< The root is complete.
    };

    [[nodiscard]] Expected expected() const noexcept;
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
    void addKey(std::string key, std::uint32_t offset);
    void addValue(PropertyList value, std::uint32_t offset);
    void close();

    /// The key that waits for its value.
    [[nodiscard]] const std::string &lastKey() const noexcept { return entries_.back().key; }

    /// Once nothing is expected any more.
    [[nodiscard]] PropertyList takeRoot() noexcept { return std::move(root_); }
    [[nodiscard]] std::vector<PropertyList::DuplicateKey> takeDuplicates();

private:
    using Entry = PropertyList::Dictionary::Entry;

    struct Frame {
        std::size_t firstValue;
        std::size_t firstEntry;
        std::uint32_t offset;
        bool isDictionary;
    };

    void open(std::uint32_t offset, bool isDictionary);
    PropertyList closedArray(const Frame &frame);
    PropertyList closedDictionary(const Frame &frame);
    void removeDuplicates(std::size_t firstEntry);
    void noteDuplicate(const Entry &later);
    [[nodiscard]] bool hasDuplicates(std::size_t firstEntry) const;
    [[nodiscard]] std::string pathOfLastFrame() const;

    // The children of all open containers, the innermost last, so that a finished one is made in its exact
    // size.
    std::vector<PropertyList> values_;
    std::vector<Entry> entries_;
    std::vector<Frame> frames_;
    PropertyList root_;
    std::vector<PropertyList::DuplicateKey> duplicates_;
    std::size_t bytesOfDuplicates_ = 0;
    std::size_t valueCount_ = 0; // Without the open containers.
    bool hasRoot_ = false;
    bool keyWaits_ = false;
};

} // namespace velmar
