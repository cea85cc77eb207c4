#pragma once

#include <Configuration/ConfigurationEnum.h>
#include <Configuration/ConfigurationError.h>
#include <Configuration/DecodingContext.h>
#include <Configuration/Description.h>
#include <Configuration/InPlace.h>
#include <Configuration/Texts.h>
#include <Foundation/PropertyList.h>

#include <fmt/format.h>

#include <concepts>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace velmar {

/// One of several alternative items, selected by a key of the dictionary. Its members are
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

template <class T>
struct EnumCoding;
// Defined in ItemCodingTemplates.h.
template <class T>
struct ItemCoding;
template <class T>
struct TaggedItemCoding;

namespace detail {

template <class T>
consteval auto codingOf() {
    if constexpr (ConfigurationEnum<T>) {
        return std::type_identity<EnumCoding<T>>();
    } else if constexpr (TaggedItem<T>) {
        return std::type_identity<TaggedItemCoding<T>>();
    } else {
        static_assert(KeysCodableItem<T>, "The type is not one of the file");
        return std::type_identity<ItemCoding<T>>();
    }
}

} // namespace detail

/// The coding of a value type. All enumerations share one coding, and so do all items; any other type has a
/// specialisation. Its members are
///     static T decode(const Decoding &);                           throws ConfigurationError
///     static std::optional<PropertyList> encode(const T &);        std::nullopt if there is nothing to write
///     static std::string plistType();                              the type as an administrator reads it
///     static ValueDescription describe(Descriptions &);            the type as data, for tools
/// Enumerations and items use base classes instead of constrained specialisations, because GCC 12 makes the
/// instances of the latter local to each object file.
template <class T>
struct Decodable : decltype(detail::codingOf<T>())::type {};

/// Throws the ConfigurationError for a value that isn't of the expected type.
[[noreturn]] void throwWrongType(const Decoding &decoding, const std::string &expectedType);
[[noreturn]] void throwWrongType(const Decoding &decoding, const std::string &description,
                                 const std::string &expectedType);

/// Throws the ConfigurationError for a value that should be an item but isn't a dictionary.
[[noreturn]] void throwNoItem(const Decoding &decoding, const std::string &expectedType);

/// Records a text that refers to variables. It is checked after the whole file is decoded.
void recordVariables(const Decoding &decoding);

template <>
struct Decodable<bool> {
    static bool decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(bool value) { return PropertyList(value); }
    static std::string plistType() { return "boolean"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::of(ValueDescription::Kind::boolean);
    }
};

template <>
struct Decodable<std::int64_t> {
    static std::int64_t decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(std::int64_t value) { return PropertyList(value); }
    static std::string plistType() { return "integer (number)"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::of(ValueDescription::Kind::integer);
    }
};

/// Accepts finite numbers only.
template <>
struct Decodable<double> {
    static double decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(double value) { return PropertyList(value); }
    static std::string plistType() { return "real (number)"; }
    static ValueDescription describe(Descriptions & /*items*/) {
        return ValueDescription::of(ValueDescription::Kind::real);
    }
};

template <>
struct Decodable<std::string> {
    static std::string decode(const Decoding &decoding);
    static std::optional<PropertyList> encode(const std::string &value) { return PropertyList(value); }
    static std::string plistType() { return "string"; }
    static ValueDescription describe(Descriptions & /*items*/) { return ValueDescription::text(); }
};

template <class E>
struct EnumCoding {
    static E decode(const Decoding &decoding) {
        const auto text = decoding.value.string();
        if (!text) {
            throwWrongType(decoding, plistType());
        }
        if (const auto value = enumValue<E>(*text)) {
            return *value;
        }
        if (decoding.context.notes() != nullptr) {
            decoding.context.noteEnumerationCase(decoding.path, *text, decoding.value.offset(),
                                                 rawStringList<E>());
        }
        throwWrongType(decoding, plistType());
    }
    static std::optional<PropertyList> encode(E value) { return PropertyList(rawString(value)); }
    static std::string plistType() { return possibleValuesText(rawStringList<E>()); }
    static ValueDescription describe(Descriptions & /*items*/) {
        ValueDescription description = ValueDescription::of(ValueDescription::Kind::enumeration);
        description.rawStrings.assign(rawStringList<E>().begin(), rawStringList<E>().end());
        return description;
    }
};

/// Empty if the key is absent. A value that is present must be valid.
template <class T>
struct Decodable<std::optional<T>> {
    static std::optional<T> decode(const Decoding &decoding) {
        return std::optional<T>(std::in_place, InPlace{[&] { return Decodable<T>::decode(decoding); }});
    }
    static std::optional<PropertyList> encode(const std::optional<T> &value) {
        return value ? Decodable<T>::encode(*value) : std::nullopt;
    }
    static std::string plistType() { return Decodable<T>::plistType(); }
    static ValueDescription describe(Descriptions &items) { return Decodable<T>::describe(items); }
};

template <class T>
struct Decodable<std::vector<T>> {
    static std::vector<T> decode(const Decoding &decoding) {
        if (!decoding.value.isArray()) {
            throwWrongType(decoding, plistType());
        }
        std::vector<T> elements;
        elements.reserve(decoding.value.elements().size());
        for (const PropertyListValue &value : decoding.value.elements()) {
            const CodingPath path(decoding.path, elements.size());
            try {
                elements.emplace_back(InPlace{[&] {
                    return Decodable<T>::decode({value, path, decoding.context});
                }});
            } catch (...) {
                decoding.context.noteFailure(path, value.offset());
                throw;
            }
        }
        return elements;
    }
    static std::optional<PropertyList> encode(const std::vector<T> &elements) {
        PropertyList::Array array;
        array.reserve(elements.size());
        for (const T &element : elements) {
            if (auto value = Decodable<T>::encode(element)) {
                array.push_back(*std::move(value));
            }
        }
        return PropertyList(std::move(array));
    }
    static std::string plistType() { return fmt::format("array of {}", Decodable<T>::plistType()); }
    static ValueDescription describe(Descriptions &items) {
        return ValueDescription::of(ValueDescription::Kind::list, {Decodable<T>::describe(items)});
    }
};

template <class T>
struct Decodable<std::map<std::string, T>> {
    static std::map<std::string, T> decode(const Decoding &decoding) {
        if (!decoding.value.isDictionary()) {
            throwWrongType(decoding, plistType());
        }
        std::map<std::string, T> values;
        for (const auto &entry : decoding.value.entries()) {
            const CodingPath path(decoding.path, entry.key.text());
            try {
                values.try_emplace(std::string(entry.key.text()), InPlace{[&] {
                                       return Decodable<T>::decode({entry.value, path, decoding.context});
                                   }});
            } catch (...) {
                decoding.context.noteFailure(path, entry.value.offset());
                throw;
            }
        }
        return values;
    }
    static std::optional<PropertyList> encode(const std::map<std::string, T> &values) {
        std::vector<PropertyList::Dictionary::Entry> entries;
        entries.reserve(values.size());
        for (const auto &[key, value] : values) {
            if (auto encoded = Decodable<T>::encode(value)) {
                entries.push_back({key, *std::move(encoded)});
            }
        }
        return PropertyList(PropertyList::Dictionary(std::move(entries)));
    }
    static std::string plistType() { return fmt::format("dictionary of {}", Decodable<T>::plistType()); }
    static ValueDescription describe(Descriptions &items) {
        return ValueDescription::of(ValueDescription::Kind::dictionary, {Decodable<T>::describe(items)});
    }
};

/// The types of keys that can have a range.
template <class T>
concept HasRange = std::is_same_v<T, double> || std::is_same_v<T, std::optional<double>> ||
    std::is_same_v<T, std::int64_t> || std::is_same_v<T, std::optional<std::int64_t>>;

template <HasRange T>
void checkRange(const T &value, const ClosedRange &range, const Decoding &decoding) {
    const double number = [&] {
        if constexpr (requires { *value; }) {
            return static_cast<double>(*value);
        } else {
            return static_cast<double>(value);
        }
    }();
    if (!range.contains(number)) {
        throw ConfigurationError(ConfigurationErrors::WrongValueInRange{number, range, decoding.path.text()});
    }
}

/// The types of keys that can have an array coding strategy.
template <class T>
concept CanBeDecodedAsTexts =
    std::is_same_v<T, std::vector<std::string>> || std::is_same_v<T, std::optional<std::vector<std::string>>>;

/// Decodes an array of strings, of integers or of reals, each converted to text. Throws
/// ArrayCodingStrategyFailed.
[[nodiscard]] std::vector<std::string> decodeTexts(const Decoding &decoding);

template <CanBeDecodedAsTexts T>
T decodeAsTexts(const Decoding &decoding) {
    return decodeTexts(decoding);
}

} // namespace velmar
