#pragma once

// The shared routines of all items, by reflection over their members. Included by the one source of a group
// of items, never by the headers that declare them: reflection is what costs time to compile.

#include <Configuration/Book.h>
#include <Configuration/CodableKey.h>
#include <Configuration/Decodable.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/KeyWrapper.h>

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

/// Adds the holders of an item. The one place that reflects on it: what the routines do with the holders is
/// compiled once for all items.
template <class T>
void appendKeys(T &item, KeyList &keys) {
    boost::pfr::for_each_field(item, [&](auto &member) {
        using Member = std::remove_cvref_t<decltype(member)>;
        if constexpr (KeyGroup<Member>) {
            appendKeys(member, keys);
        } else if constexpr (requires { member.asSibling(); }) {
            keys.push_back(CodableKey(member));
        }
    });
}

template <class T>
[[nodiscard]] KeyList keysOf(T &item) {
    KeyList keys;
    appendKeys(item, keys);
    return keys;
}
/// Of an item that stays as it is.
template <class T>
[[nodiscard]] const KeyList keysOf(const T &item) { // NOLINT(readability-const-return-type): as the item
    return keysOf(const_cast<T &>(item));           // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

/// A new item at its defaults. Copies share the declarations of its keys with the one default instance.
template <class T>
T makeDefault() {
    static const T defaultInstance{};
    return defaultInstance;
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
        KeyList keys = keysOf(item);
        decodeKeys(keys, plistType(), decoding);
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

    static std::optional<PropertyList> encode(const T &item) { return encodeKeys(keysOf(item)); }

    static std::string plistType() { return fmt::format("dictionary ({})", T::typeName); }

    static ValueDescription describe(Descriptions &items) {
        if (ItemDescription *const item = items.add(T::typeName)) {
            const T defaults = makeDefault<T>();
            for (const CodableKey &key : keysOf(defaults)) {
                item->keys.push_back(key.describe(items));
            }
        }
        return ValueDescription::item(T::typeName);
    }

    static VariableNames usedVariables(const T &item) {
        VariableNames names;
        for (const CodableKey &key : keysOf(item)) {
            names.merge(key.usedVariables());
        }
        return names;
    }
};

/// The coding of an item of several kinds.
template <class T>
struct TaggedItemCoding {
    using Value = decltype(T::value);

    static T decode(const Decoding &decoding) {
        const PropertyList::Dictionary *dictionary = decoding.value.dictionary();
        if (dictionary == nullptr) {
            throwNoItem(decoding, plistType());
        }
        const typename T::TypeIdentifier identifier = identifierOf(*dictionary, decoding);
        const KeyReadBefore keysRead{T::typeKey, decoding.keysReadBefore};
        return decodeAlternative(identifier, {decoding.value, decoding.path, decoding.context, &keysRead},
                                 std::make_index_sequence<std::variant_size_v<Value>>());
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

    static std::string plistType() { return fmt::format("dictionary ({})", T::typeName); }

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

private:
    template <std::size_t... Index>
    static void describeAlternatives(ItemDescription &item, Descriptions &items,
                                     std::index_sequence<Index...>) {
        const auto add = [&]<class Alternative>(std::type_identity<Alternative>) {
            item.kinds.emplace_back(rawString(Alternative::typeIdentifier), Alternative::typeName);
            static_cast<void>(Decodable<Alternative>::describe(items));
        };
        (add(std::type_identity<std::variant_alternative_t<Index, Value>>()), ...);
    }

    static typename T::TypeIdentifier identifierOf(const PropertyList::Dictionary &dictionary,
                                                   const Decoding &decoding) {
        const PropertyList *const type = dictionary.find(T::typeKey);
        if (type == nullptr) {
            noteNearMissOfType(dictionary, decoding);
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
            decoding.context.noteFailure(typePath.text(), type->offset());
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
    static void noteNearMissOfType(const PropertyList::Dictionary &dictionary, const Decoding &decoding) {
        constexpr std::array<std::string_view, 1> known{T::typeKey};
        for (const auto &entry : dictionary) {
            if (decoding.context.notes() != nullptr && equalButForCase(entry.key, T::typeKey)) {
                decoding.context.noteUnknownKey(decoding.path, entry.key, entry.keyOffset, known);
            }
        }
    }

    template <std::size_t... Index>
    static T decodeAlternative(typename T::TypeIdentifier identifier, const Decoding &decoding,
                               std::index_sequence<Index...>) {
        std::optional<T> item;
        const auto attempt = [&]<class Alternative>(std::type_identity<Alternative>) {
            if (Alternative::typeIdentifier == identifier) {
                item.emplace(T{Decodable<Alternative>::decode(decoding)});
            }
        };
        (attempt(std::type_identity<std::variant_alternative_t<Index, Value>>()), ...);
        return *std::move(item);
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
    KeyList keys = keysOf(model);
    const KeyList parentKeys = keysOf(parent);
    for (std::size_t index = 0; index < keys.size(); ++index) {
        CodableKey &key = keys[index];
        if (!key.asSibling().wasGivenValueWhileDecoding && !key.isHolder(&model._parentModelName)) {
            key.inherit(parentKeys[index]);
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
