#pragma once

#include <Configuration/Decodable.h>
#include <Configuration/KeyWrapper.h>
#include <Configuration/Populatable.h>
#include <Configuration/VariableKeyWrapper.h>
#include <expressions/VariableNames.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace velmar {

/// Returns the variables used in the texts of a value; for an item, in those of all its keys, including
/// nested items.
template <class T>
VariableNames namesUsedBy(const T &value);

/// The operations on a key that CodableKey needs for each type of holder. `decode` throws ConfigurationError.
///     static void decode(Key &, const PropertyListValue &, const CodingPath &itemPath, DecodingContext &);
///     static void encode(const Key &, PropertyList::Dictionary &item);   if it is required or was set
///     static KeyDescription describe(const Key &, Descriptions &items);  adds the items of the value
///     static VariableNames usedVariables(const Key &);
template <class Key>
struct KeyCoding;

template <class T>
struct KeyCoding<KeyWrapper<T>> {
    using Key = KeyWrapper<T>;

    static void decode(Key &key, const PropertyListValue &value, const CodingPath &itemPath,
                       DecodingContext &context);
    static void encode(const Key &key, PropertyList::Dictionary &item);
    static KeyDescription describe(const Key &key, Descriptions &items);
    static VariableNames usedVariables(const Key &key);

protected:
    using Held = typename Key::Held;
    using Node = typename Key::Node;

    /// Decodes a key of any type. `read` returns the value in the form in which the holder stores it.
    template <class ReadValue>
    static void decodeWith(Key &key, const PropertyListValue &value, const CodingPath &itemPath,
                           DecodingContext &context, ReadValue read) {
        const CodingPath path(itemPath, key.name().stringValue);
        try {
            key.value_ = read(Decoding{value, path, context});
        } catch (...) {
            context.noteFailure(path, value.offset());
            throw;
        }
        key.noteDecoded();
    }

    static T decodeValue(const Key &key, const Decoding &decoding);

    [[nodiscard]] static bool mustBeEncoded(const Key &key) {
        return key.requirement().type == RequirementType::required || key.valueWasSet();
    }
};

// Not inline, so that the coding of the usual types is compiled once.

template <class T>
void KeyCoding<KeyWrapper<T>>::decode(Key &key, const PropertyListValue &value, const CodingPath &itemPath,
                                      DecodingContext &context) {
    decodeWith(key, value, itemPath, context, [&key](const Decoding &decoding) {
        if constexpr (IsHeldInPlace<T>::value) {
            return decodeValue(key, decoding);
        } else {
            return Held(new Node(InPlace{[&] { return decodeValue(key, decoding); }}));
        }
    });
}

template <class T>
void KeyCoding<KeyWrapper<T>>::encode(const Key &key, PropertyList::Dictionary &item) {
    if (mustBeEncoded(key)) {
        if (auto value = Decodable<T>::encode(key.rawValue())) {
            item.set(key.name().stringValue, *std::move(value));
        }
    }
}

template <class T>
KeyDescription KeyCoding<KeyWrapper<T>>::describe(const Key &key, Descriptions &items) {
    KeyDescription description{
        key.name().stringValue, Decodable<T>::describe(items), {}, key.requirement(), key.range()};
    if constexpr (requires { Decodable<T>::asWritten(key.initialDefaultValue()); }) {
        description.defaultValue = Decodable<T>::asWritten(key.initialDefaultValue());
    } else {
        description.defaultValue = Decodable<T>::encode(key.initialDefaultValue());
    }
    return description;
}

template <class T>
VariableNames KeyCoding<KeyWrapper<T>>::usedVariables(const Key &key) {
    return namesUsedBy(key.rawValue());
}

template <class T>
T KeyCoding<KeyWrapper<T>>::decodeValue(const Key &key, const Decoding &decoding) {
    if constexpr (CanBeDecodedAsTexts<T>) {
        if (key.arrayCodingStrategy()) {
            return decodeAsTexts<T>(decoding);
        }
    }
    T value = Decodable<T>::decode(decoding);
    if constexpr (HasRange<T>) {
        if (key.range()) {
            checkRange(value, *key.range(), decoding);
        }
    }
    return value;
}

/// Also declares the names of variables.
template <class T>
struct KeyCoding<VariableKeyWrapper<T>> : KeyCoding<KeyWrapper<T>> {
    static void decode(VariableKeyWrapper<T> &key, const PropertyListValue &value, const CodingPath &itemPath,
                       DecodingContext &context);
};

template <class T>
void KeyCoding<VariableKeyWrapper<T>>::decode(VariableKeyWrapper<T> &key, const PropertyListValue &value,
                                              const CodingPath &itemPath, DecodingContext &context) {
    KeyCoding<KeyWrapper<T>>::decode(key, value, itemPath, context);
    const auto declaredNames = key.declaredNames();
    if (declaredNames == nullptr) {
        return;
    }
    if constexpr (std::is_same_v<T, std::string>) {
        if (key.declaringForm() == DeclaringForm::populated) {
            context.declareByPopulatedText(*value.string(), declaredNames);
            return;
        }
    }
    for (std::string &name : declaredNames(key.rawValue())) {
        context.declareVariable(std::move(name));
    }
}

template <class T>
VariableNames namesUsedBy(const T &value) {
    VariableNames names;
    const auto add = [&](const auto &part) { names.merge(namesUsedBy(part)); };
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

extern template struct KeyCoding<KeyWrapper<bool>>;
extern template struct KeyCoding<KeyWrapper<double>>;
extern template struct KeyCoding<KeyWrapper<std::optional<double>>>;
extern template struct KeyCoding<KeyWrapper<std::int64_t>>;
extern template struct KeyCoding<KeyWrapper<std::optional<std::int64_t>>>;
extern template struct KeyCoding<KeyWrapper<std::string>>;
extern template struct KeyCoding<KeyWrapper<std::optional<std::string>>>;
extern template struct KeyCoding<KeyWrapper<std::vector<std::string>>>;
extern template struct KeyCoding<VariableKeyWrapper<std::string>>;
extern template struct KeyCoding<VariableKeyWrapper<std::optional<std::string>>>;

} // namespace velmar
