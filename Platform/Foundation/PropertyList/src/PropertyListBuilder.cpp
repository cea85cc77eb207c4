#include "PropertyListBuilder.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <span>

namespace velmar {

// Below, comparing every pair is quicker than sorting.
static constexpr std::size_t fewEntries = 24;
// Paths repeat long keys: what is noted must not outgrow the file.
static constexpr std::size_t maximumBytesOfDuplicates = std::size_t{1} << 20;

PropertyListBuilder::Expected PropertyListBuilder::expected() const noexcept {
    if (frames_.empty()) {
        return hasRoot_ ? Expected::Nothing : Expected::Root;
    }
    if (!frames_.back().isDictionary) {
        return Expected::Element;
    }
    return keyWaits_ ? Expected::Value : Expected::Key;
}

void PropertyListBuilder::open(std::uint32_t offset, bool isDictionary) {
    frames_.push_back(Frame{values_.size(), entries_.size(), offset, isDictionary});
    keyWaits_ = false;
}

void PropertyListBuilder::addKey(std::string key, std::uint32_t offset) {
    entries_.push_back(Entry{std::move(key), PropertyList(), offset});
    keyWaits_ = true;
}

void PropertyListBuilder::addValue(PropertyList value, std::uint32_t offset) {
    value.setOffset(offset);
    ++valueCount_;
    if (frames_.empty()) {
        root_ = std::move(value);
        hasRoot_ = true;
    } else if (frames_.back().isDictionary) {
        entries_.back().value = std::move(value);
        keyWaits_ = false;
    } else {
        values_.push_back(std::move(value));
    }
}

void PropertyListBuilder::close() {
    const Frame frame = frames_.back();
    PropertyList value = frame.isDictionary ? closedDictionary(frame) : closedArray(frame);
    frames_.pop_back();
    addValue(std::move(value), frame.offset);
}

PropertyList PropertyListBuilder::closedArray(const Frame &frame) {
    const auto first = values_.begin() + static_cast<std::ptrdiff_t>(frame.firstValue);
    PropertyList::Array array(std::make_move_iterator(first), std::make_move_iterator(values_.end()));
    values_.erase(first, values_.end());
    return PropertyList(std::move(array));
}

PropertyList PropertyListBuilder::closedDictionary(const Frame &frame) {
    if (hasDuplicates(frame.firstEntry)) {
        removeDuplicates(frame.firstEntry);
    }
    const auto first = entries_.begin() + static_cast<std::ptrdiff_t>(frame.firstEntry);
    std::vector<Entry> entries(std::make_move_iterator(first), std::make_move_iterator(entries_.end()));
    entries_.erase(first, entries_.end());
    return PropertyList(PropertyList::Dictionary(std::move(entries)));
}

bool PropertyListBuilder::hasDuplicates(std::size_t firstEntry) const {
    const std::span<const Entry> entries = std::span(entries_).subspan(firstEntry);
    if (entries.size() <= fewEntries) {
        for (std::size_t later = 1; later < entries.size(); ++later) {
            for (std::size_t earlier = 0; earlier < later; ++earlier) {
                if (entries[earlier].key == entries[later].key) {
                    return true;
                }
            }
        }
        return false;
    }
    std::vector<std::string_view> keys;
    keys.reserve(entries.size());
    for (const Entry &entry : entries) {
        keys.push_back(entry.key);
    }
    // Sorted and not hashed: nobody can choose keys that make it slow.
    std::ranges::sort(keys);
    return std::ranges::adjacent_find(keys) != keys.end();
}

void PropertyListBuilder::removeDuplicates(std::size_t firstEntry) {
    const std::span<const Entry> entries = std::span(entries_).subspan(firstEntry);
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(order, {},
                             [&](std::size_t index) -> std::string_view { return entries[index].key; });

    std::vector<bool> isReplaced(entries.size());
    for (std::size_t next = 1; next < order.size(); ++next) {
        if (entries[order[next - 1]].key == entries[order[next]].key) {
            isReplaced[order[next - 1]] = true;
            noteDuplicate(entries[order[next]]);
        }
    }
    std::size_t kept = firstEntry;
    for (std::size_t index = 0; index < isReplaced.size(); ++index) {
        if (isReplaced[index]) {
            continue;
        }
        if (kept != firstEntry + index) {
            entries_[kept] = std::move(entries_[firstEntry + index]);
        }
        ++kept;
    }
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(kept), entries_.end());
}

void PropertyListBuilder::noteDuplicate(const Entry &later) {
    if (bytesOfDuplicates_ > maximumBytesOfDuplicates) {
        return;
    }
    std::string path = pathOfLastFrame();
    bytesOfDuplicates_ += sizeof(PropertyList::DuplicateKey) + later.key.size() + path.size();
    if (bytesOfDuplicates_ <= maximumBytesOfDuplicates) {
        duplicates_.push_back({later.key, later.keyOffset, std::move(path)});
    }
}

std::string PropertyListBuilder::pathOfLastFrame() const {
    std::string path;
    for (std::size_t index = 0; index + 1 < frames_.size(); ++index) {
        const Frame &inner = frames_[index + 1];
        if (index > 0) {
            path += '.';
        }
        if (frames_[index].isDictionary) {
            path += entries_[inner.firstEntry - 1].key;
        } else {
            path += std::to_string(inner.firstValue - frames_[index].firstValue);
        }
    }
    return path;
}

std::vector<PropertyList::DuplicateKey> PropertyListBuilder::takeDuplicates() {
    std::ranges::sort(duplicates_, {}, &PropertyList::DuplicateKey::offset);
    return std::move(duplicates_);
}

} // namespace velmar
