#include <Foundation/PropertyList.h>

#include <algorithm>

namespace velmar {

using Dictionary = PropertyList::Dictionary;

Dictionary::Dictionary() noexcept = default;
Dictionary::Dictionary(std::vector<Entry> entries) noexcept : entries_(std::move(entries)) {}
Dictionary::Dictionary(const Dictionary &) = default;
Dictionary::Dictionary(Dictionary &&) noexcept = default;
Dictionary &Dictionary::operator=(const Dictionary &) = default;
Dictionary &Dictionary::operator=(Dictionary &&) noexcept = default;
Dictionary::~Dictionary() = default;

const PropertyList *Dictionary::find(std::string_view key) const noexcept {
    const auto found = std::ranges::find(entries_, key, &Entry::key);
    return found == entries_.end() ? nullptr : &found->value;
}

PropertyList *Dictionary::find(std::string_view key) noexcept {
    const auto found = std::ranges::find(entries_, key, &Entry::key);
    return found == entries_.end() ? nullptr : &found->value;
}

void Dictionary::set(std::string_view key, PropertyList value) {
    if (PropertyList *present = find(key)) {
        *present = std::move(value);
    } else {
        entries_.push_back(Entry{std::string(key), std::move(value)});
    }
}

bool Dictionary::operator==(const Dictionary &other) const {
    if (size() != other.size()) {
        return false;
    }
    const auto sorted = [](const Dictionary &dictionary) {
        std::vector<const Entry *> entries;
        entries.reserve(dictionary.size());
        for (const Entry &entry : dictionary) {
            entries.push_back(&entry);
        }
        std::ranges::sort(entries, {}, [](const Entry *entry) -> std::string_view { return entry->key; });
        return entries;
    };
    return std::ranges::equal(sorted(*this), sorted(other), [](const Entry *left, const Entry *right) {
        return left->key == right->key && left->value == right->value;
    });
}

} // namespace velmar
