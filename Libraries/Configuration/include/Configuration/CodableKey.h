#pragma once

#include <Configuration/DecodingContext.h>
#include <Configuration/Description.h>
#include <Configuration/Requirement.h>
#include <Foundation/PropertyList.h>
#include <expressions/Variables.h>

#include <boost/container/small_vector.hpp>

#include <string>

namespace velmar {

// In ItemCoding.h.
template <class T>
VariableNames usedVariables(const T &value);

/// A holder of an item, whatever its value is: what the shared routines need of it. It refers to the holder,
/// which must outlive it.
class CodableKey {
public:
    template <class Key>
    explicit CodableKey(Key &key) : key_(&key), operations_(&operationsOf<Key>) {}

    [[nodiscard]] const ConfigCodingKey &name() const { return operations_->name(key_); }
    [[nodiscard]] const Requirement &requirement() const { return operations_->requirement(key_); }
    [[nodiscard]] SiblingKey asSibling() const { return operations_->asSibling(key_); }
    void encode(PropertyList::Dictionary &item) const { operations_->encode(key_, item); }
    [[nodiscard]] KeyDescription describe(Descriptions &items) const {
        return operations_->describe(key_, items);
    }
    [[nodiscard]] VariableNames usedVariables() const { return operations_->usedVariables(key_); }
    [[nodiscard]] bool isHolder(const void *holder) const { return key_ == holder; }

    void decode(const PropertyList::Dictionary &item, const CodingPath &path, DecodingContext &context) {
        operations_->decode(key_, item, path, context);
    }
    /// `parent` is the same key of another item of the type.
    void inherit(const CodableKey &parent) { operations_->inherit(key_, parent.key_); }

private:
    struct Operations {
        const ConfigCodingKey &(*name)(const void *key);
        const Requirement &(*requirement)(const void *key);
        SiblingKey (*asSibling)(const void *key);
        void (*encode)(const void *key, PropertyList::Dictionary &item);
        KeyDescription (*describe)(const void *key, Descriptions &items);
        VariableNames (*usedVariables)(const void *key);
        void (*decode)(void *key, const PropertyList::Dictionary &item, const CodingPath &path,
                       DecodingContext &context);
        void (*inherit)(void *key, const void *parent);
    };

    template <class Key>
    static const Key &as(const void *key) {
        return *static_cast<const Key *>(key);
    }

    template <class Key>
    static constexpr Operations operationsOf{
        [](const void *key) -> decltype(auto) { return as<Key>(key).name(); },
        [](const void *key) -> decltype(auto) { return as<Key>(key).requirement(); },
        [](const void *key) { return as<Key>(key).asSibling(); },
        [](const void *key, PropertyList::Dictionary &item) { as<Key>(key).encode(item); },
        [](const void *key, Descriptions &items) { return as<Key>(key).describe(items); },
        [](const void *key) { return velmar::usedVariables(as<Key>(key).rawValue()); },
        [](void *key, const PropertyList::Dictionary &item, const CodingPath &path,
           DecodingContext &context) { static_cast<Key *>(key)->decode(item, path, context); },
        [](void *key, const void *parent) { static_cast<Key *>(key)->inherit(as<Key>(parent)); }};

    void *key_;
    const Operations *operations_;
};

/// The holders of an item, in the order of their declaration.
using KeyList = boost::container::small_vector<CodableKey, 16>;

/// Decodes the keys of an item and checks their requirements. `plistType` is the item's type for a message.
/// Throws ConfigurationError.
void decodeKeys(KeyList &keys, const std::string &plistType, const Decoding &decoding);

[[nodiscard]] PropertyList encodeKeys(const KeyList &keys);

} // namespace velmar
