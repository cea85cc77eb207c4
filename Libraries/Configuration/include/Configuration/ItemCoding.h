#pragma once

// The shared routines of all items, by reflection over their members. Included by the one source of a group
// of items, never by the headers that declare them: reflection is what costs time to compile.

#include <Configuration/Book.h>
#include <Configuration/Decodable.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/KeyWrapper.h>

#include <boost/container/small_vector.hpp>
#include <boost/pfr.hpp>

#include <array>
#include <concepts>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

namespace velmar {

/// One of several items, told apart by a key of its dictionary. It has
///     static constexpr std::string_view typeKey;                            such as "Type"
///     enum class TypeIdentifier                                             with its table
///     std::variant<...> value                                               each with a constant
///     `typeIdentifier`
template <class T>
concept TaggedItem = requires(T item) {
    typename T::TypeIdentifier;
    { T::typeKey } -> std::convertible_to<std::string_view>;
    item.value.index();
};

/// A section or item: an aggregate of key holders with the name of its type.
template <class T>
concept KeysCodableItem = std::is_aggregate_v<T> && !TaggedItem<T> && requires {
    { T::typeName } -> std::convertible_to<std::string_view>;
};

/// An item that checks itself once all its keys are in; its `validate` throws ConfigurationError.
template <class T>
concept PostDecodingValidatable = requires(const T &item, const CodingPath &path) {
    item.validate(path);
};

/// Holders that several items have in common, nested in each as its first member.
template <class T>
concept KeyGroup = std::is_aggregate_v<T> && requires {
    typename T::IsKeyGroup;
};

/// Calls `function` with every holder of an item, in the order of declaration.
template <class T, class Function>
void visitKeys(T &item, Function &&function) {
    boost::pfr::for_each_field(item, [&](auto &member) {
        using Member = std::remove_cvref_t<decltype(member)>;
        if constexpr (KeyGroup<Member>) {
            visitKeys(member, function);
        } else if constexpr (requires { member.asSibling(); }) {
            function(member);
        }
    });
}

/// A new item at its defaults. Copies share the declarations of its keys with the one default instance.
template <class T>
T makeDefault() {
    static const T defaultInstance{};
    return defaultInstance;
}

/// The names of an item's keys, in the order of declaration.
template <KeysCodableItem T>
const std::vector<std::string_view> &keyNames() {
    static const auto names = [] {
        std::vector<std::string_view> list;
        const T item = makeDefault<T>();
        visitKeys(item, [&](const auto &key) { list.push_back(key.name().stringValue); });
        return list;
    }();
    return names;
}

namespace detail {

template <class T>
void noteUnknownKeys(const PropertyList::Dictionary &dictionary, const Decoding &decoding) {
    std::vector<std::string_view> known = keyNames<T>();
    for (const KeyReadBefore *read = decoding.keysReadBefore; read != nullptr; read = read->before) {
        known.push_back(read->key);
    }
    for (const auto &entry : dictionary) {
        if (std::ranges::find(known, entry.key) == known.end()) {
            decoding.context.noteUnknownKey(decoding.path, entry.key, entry.keyOffset, known);
        }
    }
}

template <class T>
void validateKeys(const T &item, const Decoding &decoding) {
    boost::container::small_vector<SiblingKey, 32> siblings;
    const auto needsSiblings = [](const Requirement &requirement) {
        // What remains of these two has been seen to while decoding.
        return requirement.type != RequirementType::optional && requirement.type != RequirementType::required;
    };
    visitKeys(item, [&](const auto &key) {
        if (!needsSiblings(key.requirement())) {
            return;
        }
        if (siblings.empty()) {
            visitKeys(item, [&](const auto &sibling) { siblings.push_back(sibling.asSibling()); });
        }
        try {
            validate(key.asSibling(), key.requirement(), {siblings.data(), siblings.size()});
        } catch (const ConfigurationError &) {
            decoding.context.noteFailure(CodingPath(decoding.path, key.name().stringValue).text(),
                                         decoding.value.offset());
            throw;
        }
    });
}

template <PostDecodingValidatable T>
void validateItem(const T &item, const Decoding &decoding) {
    try {
        item.validate(decoding.path);
    } catch (const ConfigurationError &error) {
        if (const auto *custom = error.as<ConfigurationErrors::Custom>()) {
            decoding.context.noteFailure(custom->path, decoding.value.offset());
        }
        throw;
    }
}

} // namespace detail

template <KeysCodableItem T>
struct Decodable<T> {
    static T decode(const Decoding &decoding) {
        const PropertyList::Dictionary *dictionary = decoding.value.dictionary();
        if (dictionary == nullptr) {
            throwNoItem(decoding, plistType());
        }
        // First, because the key that is missed may be there with a slip.
        if (decoding.context.notes() != nullptr) {
            detail::noteUnknownKeys<T>(*dictionary, decoding);
        }
        T item = makeDefault<T>();
        visitKeys(item, [&](auto &key) { key.decode(*dictionary, decoding.path, decoding.context); });
        detail::validateKeys(item, decoding);
        if constexpr (PostDecodingValidatable<T>) {
            detail::validateItem(item, decoding);
        }
        return item;
    }

    static std::optional<PropertyList> encode(const T &item) {
        PropertyList::Dictionary dictionary;
        visitKeys(item, [&](const auto &key) { key.encode(dictionary); });
        return PropertyList(std::move(dictionary));
    }

    static std::string plistType() { return fmt::format("dictionary ({})", T::typeName); }
};

template <TaggedItem T>
struct Decodable<T> {
    using Value = decltype(T::value);

    static T decode(const Decoding &decoding) {
        const PropertyList::Dictionary *dictionary = decoding.value.dictionary();
        if (dictionary == nullptr) {
            throwNoItem(decoding, plistType());
        }
        const PropertyList *type = dictionary->find(T::typeKey);
        if (type == nullptr) {
            noteNearMissOfType(*dictionary, decoding);
            throw ConfigurationError(
                ConfigurationErrors::MissingValueWithPath{std::string(T::typeKey), decoding.path.text()});
        }
        const CodingPath typePath(decoding.path, T::typeKey);
        typename T::TypeIdentifier identifier;
        try {
            identifier = Decodable<typename T::TypeIdentifier>::decode({*type, typePath, decoding.context});
        } catch (...) {
            decoding.context.noteFailure(typePath.text(), type->offset());
            throw;
        }

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

private:
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
    } else if constexpr (KeysCodableItem<T>) {
        visitKeys(value, [&](const auto &key) { add(key.rawValue()); });
    } else if constexpr (TaggedItem<T>) {
        std::visit(add, value.value);
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
    std::vector<const void *> parentKeys;
    visitKeys(parent, [&](const auto &key) { parentKeys.push_back(&key); });
    std::size_t index = 0;
    visitKeys(model, [&](auto &key) {
        using Key = std::remove_cvref_t<decltype(key)>;
        const auto &parentKey = *static_cast<const Key *>(parentKeys[index++]);
        const bool isParentName = static_cast<const void *>(&key) == &model._parentModelName;
        if (!key.wasGivenValueWhileDecoding() && !isParentName) {
            key.inherit(parentKey);
        }
    });
    model.isParentStyleApplied = true;
}

/// What a model says of itself in messages.
template <class T>
std::string modelText(const T &model) {
    return Decodable<T>::encode(model)->text();
}

} // namespace velmar
