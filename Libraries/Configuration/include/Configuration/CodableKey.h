#pragma once

#include <Configuration/DecodingContext.h>
#include <Configuration/Description.h>
#include <Configuration/KeyCoding.h>
#include <Configuration/Requirement.h>
#include <Configuration/VisitedValue.h>
#include <Foundation/PropertyList.h>
#include <Foundation/PropertyListValue.h>
#include <expressions/VariableNames.h>

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace velmar {

// Defined in VisitValues.h.
template <class T>
void visitValues(const T &value, const ValuePlace &place, ValueVisitor &visitor);

/// A key of an item type, independent of the type of its value: the offset of its holder in an item, and the
/// operations that the shared routines need. One instance serves all items of the type. Items are passed by
/// address.
class CodableKey {
public:
    /// `holder` belongs to `item`, the default instance of the type, which must outlive the key.
    template <class Key>
    CodableKey(const void *item, const Key &holder)
        : name_(holder.name().stringValue),
          requirement_(&holder.requirement()),
          offset_(static_cast<std::size_t>(reinterpret_cast<const std::byte *>(&holder) -
                                           static_cast<const std::byte *>(item))),
          operations_(&operationsOf<Key>) {}

    [[nodiscard]] const PropertyListKey &name() const { return name_; }
    [[nodiscard]] const Requirement &requirement() const { return *requirement_; }
    [[nodiscard]] bool isHeldBy(const void *item, const void *holder) const { return in(item) == holder; }

    [[nodiscard]] bool wasGiven(const void *item) const { return operations_->wasGiven(in(item)); }
    void encode(const void *item, PropertyList::Dictionary &into) const {
        operations_->encode(in(item), into);
    }
    [[nodiscard]] KeyDescription describe(const void *item, Descriptions &items) const {
        return operations_->describe(in(item), items);
    }
    [[nodiscard]] VariableNames usedVariables(const void *item) const {
        return operations_->usedVariables(in(item));
    }
    /// Visits the value of the key, which the file gives at `place`, and every value within it.
    void visitValues(const void *item, const ValuePlace &place, ValueVisitor &visitor) const {
        operations_->visitValues(in(item), place, visitor);
    }
    void decode(void *item, const PropertyListValue &value, const CodingPath &itemPath,
                DecodingContext &context) const {
        operations_->decode(in(item), value, itemPath, context);
    }
    /// Takes the value of the key from `parent`, another item of the type.
    void inherit(void *item, const void *parent) const { operations_->inherit(in(item), in(parent)); }

private:
    struct Operations {
        bool (*wasGiven)(const void *holder);
        void (*encode)(const void *holder, PropertyList::Dictionary &item);
        KeyDescription (*describe)(const void *holder, Descriptions &items);
        VariableNames (*usedVariables)(const void *holder);
        void (*visitValues)(const void *holder, const ValuePlace &place, ValueVisitor &visitor);
        void (*decode)(void *holder, const PropertyListValue &value, const CodingPath &itemPath,
                       DecodingContext &context);
        void (*inherit)(void *holder, const void *parent);
    };

    template <class Key>
    static const Key &as(const void *holder) {
        return *static_cast<const Key *>(holder);
    }

    template <class Key>
    static constexpr Operations operationsOf{
        [](const void *holder) { return as<Key>(holder).wasGivenValueWhileDecoding(); },
        [](const void *holder, PropertyList::Dictionary &item) {
            KeyCoding<Key>::encode(as<Key>(holder), item);
        },
        [](const void *holder, Descriptions &items) {
            return KeyCoding<Key>::describe(as<Key>(holder), items);
        },
        [](const void *holder) { return KeyCoding<Key>::usedVariables(as<Key>(holder)); },
        [](const void *holder, const ValuePlace &place, ValueVisitor &visitor) {
            velmar::visitValues(as<Key>(holder).rawValue(), place, visitor);
        },
        [](void *holder, const PropertyListValue &value, const CodingPath &itemPath,
           DecodingContext &context) {
            KeyCoding<Key>::decode(*static_cast<Key *>(holder), value, itemPath, context);
        },
        [](void *holder, const void *parent) { static_cast<Key *>(holder)->inherit(as<Key>(parent)); }};

    [[nodiscard]] void *in(void *item) const { return static_cast<std::byte *>(item) + offset_; }
    [[nodiscard]] const void *in(const void *item) const {
        return static_cast<const std::byte *>(item) + offset_;
    }

    PropertyListKey name_;
    const Requirement *requirement_;
    std::size_t offset_;
    const Operations *operations_;
};

/// The keys of an item type in the order of declaration, and the rules between them.
class KeyList {
public:
    /// Throws ConfigurationError (MissingValue) if a requirement lists a key that the item lacks, which is a
    /// mistake in the declaration.
    explicit KeyList(std::vector<CodableKey> keys);
    KeyList(const KeyList &) = delete; // rules_ points into keys_.
    KeyList &operator=(const KeyList &) = delete;
    ~KeyList() = default;

    [[nodiscard]] auto begin() const noexcept { return keys_.begin(); }
    [[nodiscard]] auto end() const noexcept { return keys_.end(); }

    /// A key whose requirement depends on its siblings.
    struct Rule {
        const CodableKey *key;
        std::vector<const CodableKey *> listed;
    };
    [[nodiscard]] std::span<const Rule> rules() const noexcept { return rules_; }

private:
    std::vector<CodableKey> keys_;
    std::vector<Rule> rules_;
};

/// Decodes the keys of an item and checks their requirements. `typeName` names the item in errors. Throws
/// ConfigurationError.
void decodeKeys(void *item, const KeyList &keys, std::string_view typeName, const Decoding &decoding);

[[nodiscard]] PropertyList encodeKeys(const void *item, const KeyList &keys);

/// Visits the values of the keys that the file gives for an item at `place`.
void visitKeys(const void *item, const KeyList &keys, const ValuePlace &place, ValueVisitor &visitor);

/// Adds the description of an item type unless `items` contains it. `defaults` is the default instance of the
/// type.
void describeKeys(std::string_view typeName, const void *defaults, const KeyList &keys, Descriptions &items);

/// Returns the variables used in the texts of all keys of an item.
[[nodiscard]] VariableNames usedVariables(const void *item, const KeyList &keys);

/// Returns the offset of the value at `path` if it is a key of `item`, otherwise the offset of the item.
[[nodiscard]] std::uint32_t offsetWithin(const Decoding &item, std::string_view path);

/// Returns the type of an item as shown in messages.
[[nodiscard]] std::string itemTypeText(std::string_view typeName);

} // namespace velmar
