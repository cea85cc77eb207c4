#include <Configuration/CodableKey.h>

#include <Configuration/Decodable.h>
#include <Configuration/ItemCoding.h>

#include <algorithm>
#include <string_view>
#include <vector>

namespace velmar {

namespace {

void noteUnknownKeys(const PropertyList::Dictionary &dictionary, const KeyList &keys,
                     const Decoding &decoding) {
    std::vector<std::string_view> known;
    for (const CodableKey &key : keys) {
        known.push_back(key.name().stringValue);
    }
    for (const KeyReadBefore *read = decoding.keysReadBefore; read != nullptr; read = read->before) {
        known.push_back(read->key);
    }
    for (const auto &entry : dictionary) {
        if (std::ranges::find(known, entry.key) == known.end()) {
            decoding.context.noteUnknownKey(decoding.path, entry.key, entry.keyOffset, known);
        }
    }
}

// What remains of the other two has been seen to while decoding.
bool needsSiblings(const Requirement &requirement) {
    return requirement.type != RequirementType::optional && requirement.type != RequirementType::required;
}

void validateKeys(const KeyList &keys, const Decoding &decoding) {
    boost::container::small_vector<SiblingKey, 32> siblings;
    for (const CodableKey &key : keys) {
        if (!needsSiblings(key.requirement())) {
            continue;
        }
        if (siblings.empty()) {
            std::ranges::transform(keys, std::back_inserter(siblings), &CodableKey::asSibling);
        }
        try {
            validate(key.asSibling(), key.requirement(), {siblings.data(), siblings.size()});
        } catch (const ConfigurationError &) {
            const std::string path = CodingPath(decoding.path, key.name().stringValue).text();
            decoding.context.noteFailure(path, detail::offsetWithin(decoding, path));
            throw;
        }
    }
}

} // namespace

std::uint32_t detail::offsetWithin(const Decoding &item, std::string_view path) {
    for (const auto &entry : *item.value.dictionary()) {
        if (path.ends_with(entry.key) && CodingPath(item.path, entry.key).text() == path) {
            return entry.value.offset();
        }
    }
    return item.value.offset();
}

void decodeKeys(KeyList &keys, const std::string &plistType, const Decoding &decoding) {
    const PropertyList::Dictionary *const dictionary = decoding.value.dictionary();
    if (dictionary == nullptr) {
        throwNoItem(decoding, plistType);
    }
    // First, because the key that is missed may be there with a slip.
    if (decoding.context.notes() != nullptr) {
        noteUnknownKeys(*dictionary, keys, decoding);
    }
    for (CodableKey &key : keys) {
        key.decode(*dictionary, decoding.path, decoding.context);
    }
    validateKeys(keys, decoding);
}

PropertyList encodeKeys(const KeyList &keys) {
    PropertyList::Dictionary dictionary;
    for (const CodableKey &key : keys) {
        key.encode(dictionary);
    }
    return PropertyList(std::move(dictionary));
}

} // namespace velmar
