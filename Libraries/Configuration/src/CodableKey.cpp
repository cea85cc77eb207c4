#include <Configuration/CodableKey.h>

#include <Configuration/ConfigurationError.h>
#include <Configuration/Decodable.h>

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

namespace {

bool isKnown(const PropertyListKey &given, const KeyList &keys, const KeyReadBefore *before) {
    for (; before != nullptr; before = before->before) {
        if (before->key == given) {
            return true;
        }
    }
    return std::ranges::find(keys, given, &CodableKey::name) != keys.end();
}

void noteUnknownKeys(const KeyList &keys, const Decoding &decoding) {
    std::vector<std::string_view> known;
    for (const auto &entry : decoding.value.entries()) {
        if (isKnown(entry.key, keys, decoding.keysReadBefore)) {
            continue;
        }
        if (known.empty()) {
            for (const CodableKey &key : keys) {
                known.push_back(key.name().text());
            }
            for (const KeyReadBefore *read = decoding.keysReadBefore; read != nullptr; read = read->before) {
                known.push_back(read->key.text());
            }
        }
        decoding.context.noteUnknownKey(decoding.path, entry.key.text(), entry.keyOffset, known);
    }
}

void validateKeys(const void *item, const KeyList &keys, const Decoding &decoding) {
    for (const KeyList::Rule &rule : keys.rules()) {
        const std::string_view name = rule.key->name().text();
        const auto given = static_cast<std::size_t>(std::ranges::count_if(
            rule.listed, [item](const CodableKey *listed) { return listed->wasGiven(item); }));
        try {
            validate(name, rule.key->wasGiven(item), given, rule.key->requirement());
        } catch (const ConfigurationError &) {
            const std::string path = CodingPath(decoding.path, name).text();
            decoding.context.noteFailure(path, offsetWithin(decoding, path));
            throw;
        }
    }
}

} // namespace

std::uint32_t offsetWithin(const Decoding &item, std::string_view path) {
    for (const auto &entry : item.value.entries()) {
        if (path.ends_with(entry.key.text()) && CodingPath(item.path, entry.key.text()).text() == path) {
            return entry.value.offset();
        }
    }
    return item.value.offset();
}

KeyList::KeyList(std::vector<CodableKey> keys) : keys_(std::move(keys)) {
    for (const CodableKey &key : keys_) {
        // `optional` and `required` are handled while decoding.
        const Requirement &requirement = key.requirement();
        if (requirement.type == RequirementType::optional || requirement.type == RequirementType::required) {
            continue;
        }
        Rule &rule = rules_.emplace_back(Rule{&key, {}});
        for (const ConfigCodingKey &name : requirement.keys) {
            const auto listed =
                std::ranges::find(keys_, PropertyListKey(name.stringValue), &CodableKey::name);
            if (listed == keys_.end()) {
                throw ConfigurationError(ConfigurationErrors::MissingValue{std::string(name.stringValue)});
            }
            rule.listed.push_back(&*listed);
        }
    }
}

void decodeKeys(void *item, const KeyList &keys, std::string_view typeName, const Decoding &decoding) {
    if (!decoding.value.isDictionary()) {
        throwNoItem(decoding, itemTypeText(typeName));
    }
    // Noted first: a missing key may be present with a misspelled name.
    if (decoding.context.notes() != nullptr) {
        noteUnknownKeys(keys, decoding);
    }
    for (const CodableKey &key : keys) {
        if (const PropertyListValue *const value = decoding.value.find(key.name())) {
            key.decode(item, *value, decoding.path, decoding.context);
        } else if (key.requirement().type == RequirementType::required) {
            throw ConfigurationError(ConfigurationErrors::MissingValueWithPath{std::string(key.name().text()),
                                                                               decoding.path.text()});
        }
    }
    validateKeys(item, keys, decoding);
}

PropertyList encodeKeys(const void *item, const KeyList &keys) {
    PropertyList::Dictionary dictionary;
    for (const CodableKey &key : keys) {
        key.encode(item, dictionary);
    }
    return PropertyList(std::move(dictionary));
}

void visitKeys(const void *item, const KeyList &keys, const ValuePlace &place, ValueVisitor &visitor) {
    for (const CodableKey &key : keys) {
        if (const PropertyListValue *const value = place.value.find(key.name())) {
            const CodingPath path(place.path, key.name().text());
            key.visitValues(item, {*value, path}, visitor);
        }
    }
}

void describeKeys(std::string_view typeName, const void *defaults, const KeyList &keys, Descriptions &items) {
    if (ItemDescription *const item = items.add(typeName)) {
        for (const CodableKey &key : keys) {
            item->keys.push_back(key.describe(defaults, items));
        }
    }
}

VariableNames usedVariables(const void *item, const KeyList &keys) {
    VariableNames names;
    for (const CodableKey &key : keys) {
        names.merge(key.usedVariables(item));
    }
    return names;
}

std::string itemTypeText(std::string_view typeName) {
    return fmt::format("dictionary ({})", typeName);
}

} // namespace velmar
