#pragma once

// The shared routines of all items, by reflection over their members. Included by the one source of a group
// of items, never by the headers that declare them: reflection is what costs time to compile.

#include <Configuration/Book.h>
#include <Configuration/CodableKey.h>
#include <Configuration/Decodable.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/KeyWrapper.h>
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

/// An item that checks itself once all its keys are in; its `validate` throws ConfigurationError.
template <class T>
concept PostDecodingValidatable = requires(const T &item, const CodingPath &path) {
    item.validate(path);
};

/// An item that refers to parts of the file other than models; checked when all of the file is decoded.
/// `validateReferences` throws a LocalizedError, which is told with the path of the item.
template <class T>
concept ReferencesValidatable = requires(const T &item, const Library &library) {
    item.validateReferences(library);
};

/// An item that declares variables by several of its keys together.
template <class T>
concept VariablesDeclaring = requires(const T &item, const std::function<void(std::string)> &declare) {
    item.declareVariables(declare);
};

/// Holders that several items have in common, nested in each as its first member.
template <class T>
concept KeyGroup = std::is_aggregate_v<T> && requires {
    typename T::IsKeyGroup;
};

/// Adds the keys of an item, or of a group of them within it. The one place that reflects on items: what the
/// routines do with the keys is compiled once for all of them.
template <class T>
void appendKeys(const void *item, const T &group, std::vector<CodableKey> &keys) {
    boost::pfr::for_each_field(group, [&](const auto &member) {
        using Member = std::remove_cvref_t<decltype(member)>;
        if constexpr (KeyGroup<Member>) {
            appendKeys(item, member, keys);
        } else if constexpr (requires { member.makePermanent(); }) {
            member.makePermanent();
            keys.push_back(CodableKey(item, member));
        }
    });
}

/// What stands once for all items of a type: the default instance and its keys. It is never destroyed, so
/// that copies of the instance lean on its declarations without counting.
template <class T>
class ItemPrototype {
public:
    static const ItemPrototype &shared() {
        static const ItemPrototype &prototype = *new ItemPrototype;
        return prototype;
    }

    [[nodiscard]] const T &defaults() const { return defaults_; }
    [[nodiscard]] const KeyList &keys() const { return keys_; }

private:
    ItemPrototype() : keys_(keysOfDefaults()) {}

    [[nodiscard]] std::vector<CodableKey> keysOfDefaults() const {
        std::vector<CodableKey> keys;
        appendKeys(&defaults_, defaults_, keys);
        return keys;
    }

    T defaults_{};
    KeyList keys_;
};

template <class T>
[[nodiscard]] const KeyList &keysOf() {
    return ItemPrototype<T>::shared().keys();
}

/// A new item at its defaults.
template <class T>
T makeDefault() {
    return ItemPrototype<T>::shared().defaults();
}

namespace detail {

/// Where the key of an item stands whose path an error has; the item's own place for any other path.
[[nodiscard]] std::uint32_t offsetWithin(const Decoding &item, std::string_view path);

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

/// The coding of an aggregate of key holders.
template <class T>
struct ItemCoding {
    static T decode(const Decoding &decoding) {
        T item = makeDefault<T>();
        decodeKeys(&item, keysOf<T>(), T::typeName, decoding);
        if constexpr (requires { item.id; }) {
            item.id = {};
        }
        if constexpr (VariablesDeclaring<T>) {
            item.declareVariables(
                [&](std::string name) { decoding.context.declareVariable(std::move(name)); });
        }
        if constexpr (PostDecodingValidatable<T>) {
            detail::validateItem(item, decoding);
        }
        if constexpr (ReferencesValidatable<T>) {
            decoding.context.addReference(
                decoding.value, [item](const Library &library) { item.validateReferences(library); });
        }
        return item;
    }

    static std::optional<PropertyList> encode(const T &item) { return encodeKeys(&item, keysOf<T>()); }

    static std::string plistType() { return itemTypeText(T::typeName); }

    static ValueDescription describe(Descriptions &items) {
        if (ItemDescription *const item = items.add(T::typeName)) {
            const T &defaults = ItemPrototype<T>::shared().defaults();
            for (const CodableKey &key : keysOf<T>()) {
                item->keys.push_back(key.describe(&defaults, items));
            }
        }
        return ValueDescription::item(T::typeName);
    }

    static VariableNames usedVariables(const T &item) {
        VariableNames names;
        for (const CodableKey &key : keysOf<T>()) {
            names.merge(key.usedVariables(&item));
        }
        return names;
    }

    static void visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor) {
        visitKeys(&item, keysOf<T>(), place, visitor);
    }
};

/// The coding of an item of several kinds.
template <class T>
struct TaggedItemCoding {
    using Value = decltype(T::value);

    static T decode(const Decoding &decoding) {
        if (!decoding.value.isDictionary()) {
            throwNoItem(decoding, plistType());
        }
        const typename T::TypeIdentifier identifier = identifierOf(decoding);
        const KeyReadBefore keysRead{typeKey, decoding.keysReadBefore};
        return decodeAlternative(identifier, {decoding.value, decoding.path, decoding.context, &keysRead});
    }

    static std::optional<PropertyList> encode(const T &item) {
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

    static std::string plistType() { return itemTypeText(T::typeName); }

    static ValueDescription describe(Descriptions &items) {
        if (ItemDescription *const item = items.add(T::typeName)) {
            item->typeKey = T::typeKey;
            describeAlternatives(*item, items, std::make_index_sequence<std::variant_size_v<Value>>());
        }
        return ValueDescription::item(T::typeName);
    }

    static VariableNames usedVariables(const T &item) {
        return std::visit(
            [](const auto &alternative) {
                return Decodable<std::remove_cvref_t<decltype(alternative)>>::usedVariables(alternative);
            },
            item.value);
    }

    static void visitWithin(const T &item, const ValuePlace &place, ValueVisitor &visitor) {
        std::visit([&](const auto &alternative) { visitValues(alternative, place, visitor); }, item.value);
    }

private:
    static constexpr PropertyListKey typeKey{T::typeKey};

    template <std::size_t... Index>
    static void describeAlternatives(ItemDescription &item, Descriptions &items,
                                     std::index_sequence<Index...>) {
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

    /// Which keys are known depends on the type; without it only a slip in the type's own key can be told.
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

/// The variables that the texts of a value use: of an item those of all its keys, nested items included.
template <class T>
VariableNames usedVariables(const T &value) {
    VariableNames names;
    const auto add = [&](const auto &part) { names.merge(usedVariables(part)); };
    if constexpr (Populatable<T>) {
        visitTexts(value, [&](std::string_view text) { names.merge(usedVariables(text)); });
    } else if constexpr (KeysCodableItem<T> || TaggedItem<T>) {
        names = Decodable<T>::usedVariables(value);
    } else if constexpr (requires { value.has_value(); }) {
        if (value) {
            add(*value);
        }
    } else if constexpr (requires { value.begin(); }) {
        for (const auto &element : value) {
            if constexpr (requires { element.second; }) {
                add(element.second);
            } else {
                add(element);
            }
        }
    }
    return names;
}

/// A model takes what it does not give itself from its parent, whose own values are settled.
template <class T>
void inheritKeys(T &model, const T &parent) {
    for (const CodableKey &key : keysOf<T>()) {
        if (!key.wasGiven(&model) && !key.isHeldBy(&model, &model._parentModelName)) {
            key.inherit(&model, &parent);
        }
    }
    model.isParentStyleApplied = true;
}

/// What a model says of itself in messages.
template <class T>
std::string modelText(const T &model) {
    return Decodable<T>::encode(model)->text();
}

} // namespace velmar
