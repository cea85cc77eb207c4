#include "PropertyListBuilder.h"

#include <algorithm>
#include <numeric>
#include <span>
#include <utility>

namespace velmar {

// Largest number of entries for which comparing all pairs is faster than sorting.
static constexpr std::size_t fewEntries = 24;
// Limits the memory of recorded duplicates: their paths may repeat long keys.
static constexpr std::size_t maximumBytesOfDuplicates = std::size_t{1} << 20;

// A document takes about as much memory as its file. The first block is half of that; further blocks grow.
PropertyListBuilder::PropertyListBuilder(std::size_t size) {
    constexpr std::size_t smallest = 256;
    document_.memory_ = std::make_unique<std::pmr::monotonic_buffer_resource>(size / 2 + smallest);
}

void PropertyListBuilder::open(std::uint32_t offset, bool isDictionary) {
    frames_.push_back(Frame{values_.size(), entries_.size(), offset, isDictionary});
    expected_ = isDictionary ? Expected::Key : Expected::Element;
}

void PropertyListBuilder::addValue(PropertyListValue value, std::uint32_t offset) {
    value.setOffset(offset);
    ++valueCount_;
    if (frames_.empty()) {
        document_.root_ = value;
        expected_ = Expected::Nothing;
    } else if (frames_.back().isDictionary) {
        entries_.back().value = value;
        expected_ = Expected::Key;
    } else {
        values_.push_back(value);
        expected_ = Expected::Element;
    }
}

void PropertyListBuilder::close() {
    const Frame frame = frames_.back();
    PropertyListValue value;
    if (frame.isDictionary) {
        if (hasDuplicates(frame.firstEntry)) {
            removeDuplicates(frame.firstEntry);
        }
        value = PropertyListValue(keepFrom(entries_, frame.firstEntry));
    } else {
        value = PropertyListValue(keepFrom(values_, frame.firstValue));
    }
    frames_.pop_back();
    addValue(value, frame.offset);
}

template <class T>
std::span<const T> PropertyListBuilder::keepFrom(std::vector<T> &stack, std::size_t first) {
    const std::span<const T> children = std::span(stack).subspan(first);
    auto *const kept = static_cast<T *>(document_.memory_->allocate(children.size_bytes(), alignof(T)));
    std::uninitialized_copy(children.begin(), children.end(), kept);
    stack.resize(first);
    return {kept, children.size()};
}

std::string_view PropertyListBuilder::keep(std::string_view text) {
    auto *const kept = static_cast<char *>(document_.memory_->allocate(text.size(), 1));
    std::ranges::copy(text, kept);
    return {kept, text.size()};
}

PropertyListValue::Data PropertyListBuilder::keep(PropertyListValue::Data data) {
    auto *const kept = static_cast<std::byte *>(document_.memory_->allocate(data.size(), 1));
    std::ranges::copy(data, kept);
    return {kept, data.size()};
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
        keys.push_back(entry.key.text());
    }
    // Sorting has no worst case that chosen keys could provoke, unlike hashing.
    std::ranges::sort(keys);
    return std::ranges::adjacent_find(keys) != keys.end();
}

void PropertyListBuilder::removeDuplicates(std::size_t firstEntry) {
    const std::span<const Entry> entries = std::span(entries_).subspan(firstEntry);
    std::vector<std::size_t> order(entries.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::ranges::stable_sort(
        order, {}, [&](std::size_t index) -> std::string_view { return entries[index].key.text(); });

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
            entries_[kept] = entries_[firstEntry + index];
        }
        ++kept;
    }
    entries_.resize(kept);
}

void PropertyListBuilder::noteDuplicate(const Entry &later) {
    if (bytesOfDuplicates_ > maximumBytesOfDuplicates) {
        return;
    }
    std::string path = pathOfLastFrame();
    const std::string_view key = later.key.text();
    bytesOfDuplicates_ += sizeof(DuplicateKey) + key.size() + path.size();
    if (bytesOfDuplicates_ <= maximumBytesOfDuplicates) {
        document_.duplicates_.push_back({std::string(key), later.keyOffset, std::move(path)});
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
            path += entries_[inner.firstEntry - 1].key.text();
        } else {
            path += std::to_string(inner.firstValue - frames_[index].firstValue);
        }
    }
    return path;
}

PropertyListDocument PropertyListBuilder::takeDocument(PropertyListDocument::Form form,
                                                       std::string_view text) {
    document_.form_ = form;
    document_.text_ = text;
    std::ranges::sort(document_.duplicates_, {}, &DuplicateKey::offset);
    return std::move(document_);
}

} // namespace velmar
