#pragma once

// The shared routines of all items, based on reflection over their members. Include ItemCoding.h instead,
// which declares the instantiations in other sources.

#include <Configuration/BookCoding.h>
#include <Configuration/CodableKey.h>
#include <Configuration/Decodable.h>
#include <Configuration/InheritableKeyCoding.h>
#include <Configuration/KeyCoding.h>
#include <Configuration/UsedVariables.h>
#include <Configuration/VisitValues.h>

#include <boost/pfr.hpp>

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace velmar {

/// An item with a check after all its keys are decoded. `validate` throws ConfigurationError.
template <class T>
concept PostDecodingValidatable = requires(const T &item, const CodingPath &path) {
    item.validate(path);
};

/// An item that refers to parts of the file other than models. `validateReferences` runs after the whole file
/// is decoded and throws a LocalizedError, which is reported with the path of the item.
template <class T>
concept ReferencesValidatable = requires(const T &item, const Library &library) {
    item.validateReferences(library);
};

/// An item that declares variables based on several of its keys.
template <class T>
concept VariablesDeclaring = requires(const T &item, const std::function<void(std::string)> &declare) {
    item.declareVariables(declare);
};

/// Key holders common to several items, nested as the first member of each.
template <class T>
concept KeyGroup = std::is_aggregate_v<T> && requires {
    typename T::IsKeyGroup;
};

/// Appends the keys of an item, or of a group within the item. The only function that reflects on items: the
/// other routines on keys are compiled once for all items.
template <class T>
void appendKeys(const void *item, const T &group, std::vector<CodableKey> &keys) {
    boost::pfr::for_each_field(group, [&](const auto &member) {
        using Member = std::remove_cvref_t<decltype(member)>;
        if constexpr (KeyGroup<Member>) {
            appendKeys(item, member, keys);
        } else if constexpr (std::is_base_of_v<KeyHolder, Member>) {
            keys.push_back(CodableKey(item, member));
        }
    });
}

/// The default instance of an item type and its keys. Never destroyed, because other threads may read items
/// during process exit.
template <class T>
struct ItemPrototype {
    T defaults{};
    KeyList keys{keysOf(defaults)};

private:
    static std::vector<CodableKey> keysOf(const T &item) {
        std::vector<CodableKey> keys;
        appendKeys(&item, item, keys);
        return keys;
    }
};

namespace detail {

template <PostDecodingValidatable T>
void validateItem(const T &item, const Decoding &decoding) {
    try {
        item.validate(decoding.path);
    } catch (const ConfigurationError &error) {
        if (const auto *custom = error.as<ConfigurationErrors::Custom>()) {
            decoding.context.noteFailure(custom->path, offsetWithin(decoding, custom->path));
        }
        throw;
    }
}

} // namespace detail

// Members are not inline: each source that uses an inline member compiles it, even if another source
// instantiates it.

/// The coding of an aggregate of key holders.
template <class T>
struct ItemCoding {
    static const ItemPrototype<T> &prototype(); ///< One for each type.
    static T decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const T &item);
    static std::string plistType();
    static ValueDescription describe(Descriptions &items);
    static VariableNames usedVariables(const T &item);
    static void visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor);
};

template <class T>
const ItemPrototype<T> &ItemCoding<T>::prototype() {
    static const ItemPrototype<T> &prototype = *new ItemPrototype<T>;
    return prototype;
}

template <class T>
[[nodiscard]] const KeyList &keysOf() {
    return Decodable<T>::prototype().keys;
}

/// Returns a new item with every key at its default.
template <class T>
T makeDefault() {
    return Decodable<T>::prototype().defaults;
}

template <class T>
T ItemCoding<T>::decode(const Decoding &decoding) {
    T item = makeDefault<T>();
    decodeKeys(&item, keysOf<T>(), T::typeName, decoding);
    if constexpr (requires { item.id; }) {
        item.id = {};
    }
    if constexpr (VariablesDeclaring<T>) {
        item.declareVariables([&](std::string name) { decoding.context.declareVariable(std::move(name)); });
    }
    if constexpr (PostDecodingValidatable<T>) {
        detail::validateItem(item, decoding);
    }
    if constexpr (ReferencesValidatable<T>) {
        decoding.context.addReference(decoding.value,
                                      [item](const Library &library) { item.validateReferences(library); });
    }
    return item;
}

template <class T>
std::optional<PropertyList> ItemCoding<T>::encode(const T &item) {
    return encodeKeys(&item, keysOf<T>());
}

template <class T>
std::string ItemCoding<T>::plistType() {
    return itemTypeText(T::typeName);
}

template <class T>
ValueDescription ItemCoding<T>::describe(Descriptions &items) {
    describeKeys(T::typeName, &prototype().defaults, keysOf<T>(), items);
    return ValueDescription::item(T::typeName);
}

template <class T>
VariableNames ItemCoding<T>::usedVariables(const T &item) {
    return velmar::usedVariables(&item, keysOf<T>());
}

template <class T>
void ItemCoding<T>::visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor) {
    visitKeys(&item, keysOf<T>(), place, visitor);
}

/// The coding of an item with several alternatives.
template <class T>
struct TaggedItemCoding {
    static T decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const T &item);
    static std::string plistType();
    static ValueDescription describe(Descriptions &items);
    static VariableNames usedVariables(const T &item);
    static void visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor);
};

namespace detail {

/// The part of the coding of an item with several alternatives that needs the complete item.
template <class T>
struct Alternatives {
    using Value = decltype(T::value);

    static constexpr PropertyListKey typeKey{T::typeKey};

    template <std::size_t... Index>
    static void describeAll(ItemDescription &item, Descriptions &items, std::index_sequence<Index...>) {
        const auto add = [&]<class Alternative>(std::type_identity<Alternative>) {
            item.kinds.emplace_back(rawString(Alternative::typeIdentifier), Alternative::typeName);
            static_cast<void>(Decodable<Alternative>::describe(items));
        };
        (add(std::type_identity<std::variant_alternative_t<Index, Value>>()), ...);
    }

    static typename T::TypeIdentifier identifierOf(const Decoding &decoding) {
        const PropertyListValue *const type = decoding.value.find(typeKey);
        if (type == nullptr) {
            noteNearMissOfType(decoding);
            if constexpr (tellsTypeFaultsAlike) {
                throwNoType(decoding);
            }
            throw ConfigurationError(
                ConfigurationErrors::MissingValueWithPath{std::string(T::typeKey), decoding.path.text()});
        }
        const CodingPath typePath(decoding.path, T::typeKey);
        try {
            return Decodable<typename T::TypeIdentifier>::decode({*type, typePath, decoding.context});
        } catch (const ConfigurationError &) {
            decoding.context.noteFailure(typePath, type->offset());
            if constexpr (tellsTypeFaultsAlike) {
                throwNoType(decoding);
            }
            throw;
        }
    }

    static constexpr bool tellsTypeFaultsAlike = requires { T::tellsTypeFaultsAlike; };

    [[noreturn]] static void throwNoType(const Decoding &decoding) {
        throw ConfigurationError(ConfigurationErrors::DecodingError{
            decoding.path.text(),
            fmt::format("Missing required key '{}' or wrong value. Expected type: {}.", T::typeKey,
                        Decodable<typename T::TypeIdentifier>::plistType())});
    }

    /// Notes a key that differs from the type key only in case. The type determines the other known keys.
    static void noteNearMissOfType(const Decoding &decoding) {
        constexpr std::array<std::string_view, 1> known{T::typeKey};
        for (const auto &entry : decoding.value.entries()) {
            if (decoding.context.notes() != nullptr && equalButForCase(entry.key.text(), T::typeKey)) {
                decoding.context.noteUnknownKey(decoding.path, entry.key.text(), entry.keyOffset, known);
            }
        }
    }

    template <std::size_t Index = 0>
    static T decodeAlternative(typename T::TypeIdentifier identifier, const Decoding &decoding) {
        static_assert(enumCases<typename T::TypeIdentifier>.size() == std::variant_size_v<Value>);
        using Alternative = std::variant_alternative_t<Index, Value>;
        if constexpr (Index + 1 < std::variant_size_v<Value>) {
            if (Alternative::typeIdentifier != identifier) {
                return decodeAlternative<Index + 1>(identifier, decoding);
            }
        }
        return T{Value(std::in_place_index<Index>,
                       InPlace{[&] { return Decodable<Alternative>::decode(decoding); }})};
    }
};

} // namespace detail

template <class T>
T TaggedItemCoding<T>::decode(const Decoding &decoding) {
    using Alternatives = detail::Alternatives<T>;
    if (!decoding.value.isDictionary()) {
        throwNoItem(decoding, plistType());
    }
    const typename T::TypeIdentifier identifier = Alternatives::identifierOf(decoding);
    const KeyReadBefore keysRead{Alternatives::typeKey, decoding.keysReadBefore};
    return Alternatives::decodeAlternative(identifier,
                                           {decoding.value, decoding.path, decoding.context, &keysRead});
}

template <class T>
std::optional<PropertyList> TaggedItemCoding<T>::encode(const T &item) {
    return std::visit(
        [](const auto &alternative) {
            using Alternative = std::remove_cvref_t<decltype(alternative)>;
            auto encoded = Decodable<Alternative>::encode(alternative);
            encoded->dictionary()->set(std::string(T::typeKey),
                                       PropertyList(rawString(Alternative::typeIdentifier)));
            return encoded;
        },
        item.value);
}

template <class T>
std::string TaggedItemCoding<T>::plistType() {
    return itemTypeText(T::typeName);
}

template <class T>
ValueDescription TaggedItemCoding<T>::describe(Descriptions &items) {
    using Alternatives = detail::Alternatives<T>;
    if (ItemDescription *const item = items.add(T::typeName)) {
        item->typeKey = T::typeKey;
        Alternatives::describeAll(
            *item, items, std::make_index_sequence<std::variant_size_v<typename Alternatives::Value>>());
    }
    return ValueDescription::item(T::typeName);
}

template <class T>
VariableNames TaggedItemCoding<T>::usedVariables(const T &item) {
    return std::visit([](const auto &alternative) { return namesUsedBy(alternative); }, item.value);
}

template <class T>
void TaggedItemCoding<T>::visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor) {
    std::visit([&](const auto &alternative) { visitValues(alternative, place, visitor); }, item.value);
}

template <class Item>
requires requires {
    Item::typeName;
}
VariableNames usedVariables(const Item &item) {
    return Decodable<Item>::usedVariables(item);
}

/// Copies the keys that the model doesn't give from its parent. The parent's own parent must be applied.
template <class T>
void inheritKeys(T &model, const T &parent) {
    for (const CodableKey &key : keysOf<T>()) {
        if (!key.wasGiven(&model) && !key.isHeldBy(&model, &model._parentModelName)) {
            key.inherit(&model, &parent);
        }
    }
    model.isParentStyleApplied = true;
}

/// Returns the text that shows a model in messages.
template <class T>
std::string modelText(const T &model) {
    return Decodable<T>::encode(model)->text();
}

} // namespace velmar
