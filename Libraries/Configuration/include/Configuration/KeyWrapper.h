#pragma once

#include <Configuration/ConfigurationError.h>
#include <Configuration/Decodable.h>
#include <Configuration/DecodingContext.h>
#include <Configuration/Description.h>
#include <Configuration/Plugin.h>
#include <Configuration/Populatable.h>
#include <Configuration/Requirement.h>
#include <Foundation/PropertyList.h>

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <atomic>
#include <cstdint>
#include <optional>
#include <type_traits>
#include <utility>

namespace velmar {

/// How an array of texts may be given.
enum class ArrayCodingStrategy {
    customStringConvertible, ///< All as texts, all as integers or all as reals; read as text.
};

/// Whether a holder keeps a value in itself. All others stand in a place of their own, so that they may be
/// large, or incomplete where the item is declared.
template <class T>
struct IsHeldInPlace : std::bool_constant<std::is_arithmetic_v<T> || std::is_enum_v<T>> {};
template <class T>
struct IsHeldInPlace<std::optional<T>> : IsHeldInPlace<T> {};

/// Holds one key of an item: what the file may give for it, and what it gave.
///
///     struct SizeItem {
///         static constexpr std::string_view typeName = "SizeItem";
///         KeyWrapper<double> _height{0.0, "Height", required};
///         KeyWrapper<double> _width{0.0, "Width", required};
///     };
///
/// The declaration (default, name, requirement, range) stands once for all instances that are copies of one
/// default instance; an instance has its value, and two flags. A number or an enumeration stands in the
/// holder; all else beside it, shared between copies until one is set, and its type may still be incomplete
/// where the item is declared. A holder is called to read it: `size._height()`.
///
/// A decoded holder is read from any thread; setting belongs to the one owner of an item that nobody reads
/// yet.
template <class T>
class KeyWrapper {
public:
    using Value = T;

    /// What reading gives: texts pass through the plugins and come as new values, all else as it is held.
    using Read = std::conditional_t<Populatable<T>, T, const T &>;

    KeyWrapper(T defaultValue, ConfigCodingKey name, Requirement requirement)
        : KeyWrapper(new Declaration{std::move(defaultValue), name, std::move(requirement)}) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, Requirement requirement, ClosedRange range)
        : KeyWrapper(new Declaration{std::move(defaultValue), name, std::move(requirement), range}) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, Requirement requirement, ArrayCodingStrategy strategy)
        : KeyWrapper(new Declaration{std::move(defaultValue), name, std::move(requirement), {}, strategy}) {}
    /// With the default T{}: absent, empty, or the default item.
    KeyWrapper(ConfigCodingKey name, Requirement requirement)
        : KeyWrapper(new Declaration{T{}, name, std::move(requirement)}) {}

    KeyWrapper(const KeyWrapper &) = default;
    KeyWrapper(KeyWrapper &&) noexcept = default;
    KeyWrapper &operator=(const KeyWrapper &) = default;
    KeyWrapper &operator=(KeyWrapper &&) noexcept = default;
    ~KeyWrapper() = default;

    /// The value for its reader.
    Read operator()() const { return wrappedValue(); }
    [[nodiscard]] Read wrappedValue() const {
        if constexpr (Populatable<T>) {
            return pluggedValue();
        } else {
            return rawValue();
        }
    }

    /// The value after all plugins.
    [[nodiscard]] T pluggedValue() const { return plugged(rawValue()); }

    /// The value as the file has it.
    [[nodiscard]] const T &rawValue() const {
        if constexpr (isHeldInPlace) {
            return value_;
        } else {
            return value_ ? value_->value : declaration_->defaultValue;
        }
    }

    /// The variables that the texts of the value use; none for a value without texts.
    [[nodiscard]] VariableNames usedVariables() const {
        VariableNames names;
        if constexpr (Populatable<T>) {
            visitTexts(rawValue(), [&](std::string_view text) { names.merge(velmar::usedVariables(text)); });
        }
        return names;
    }

    /// Assigns by code.
    void set(T value) {
        if constexpr (isHeldInPlace) {
            value_ = value;
        } else {
            value_ = new Node(std::move(value));
        }
        valueWasSet_ = true;
    }

    /// Changes the value in place; other copies of the holder keep theirs.
    template <class Change>
    void modify(Change change) {
        if constexpr (isHeldInPlace) {
            change(value_);
        } else {
            if (!value_ || value_->use_count() > 1) {
                value_ = new Node(rawValue());
            }
            change(value_->value);
        }
        valueWasSet_ = true;
    }

    /// Takes the value of another holder of the same key, for a model that inherits it. It does not count as
    /// set, so that the model is written as it was given.
    void inherit(const KeyWrapper &parent) { value_ = parent.value_; }

    /// Back to the default. Whether the file gave the key stays known.
    void reset() {
        value_ = undecided(*declaration_);
        valueWasSet_ = false;
    }

    [[nodiscard]] bool wasGivenValueWhileDecoding() const { return wasGivenValueWhileDecoding_; }
    [[nodiscard]] bool valueWasSet() const { return valueWasSet_; }
    [[nodiscard]] const T &initialDefaultValue() const { return declaration_->defaultValue; }
    [[nodiscard]] const ConfigCodingKey &name() const { return declaration_->name; }
    [[nodiscard]] const Requirement &requirement() const { return declaration_->requirement; }
    [[nodiscard]] const std::optional<ClosedRange> &range() const { return declaration_->range; }
    [[nodiscard]] const std::optional<ArrayCodingStrategy> &arrayCodingStrategy() const {
        return declaration_->strategy;
    }

    /// Reads the value that the file gives. Throws ConfigurationError.
    void decode(const PropertyListValue &value, const CodingPath &itemPath, DecodingContext &context) {
        decodeWith(value, itemPath, context, [this](const Decoding &decoding) {
            if constexpr (isHeldInPlace) {
                return decodeValue(decoding);
            } else {
                return Held(new Node(InPlace{[&] { return decodeValue(decoding); }}));
            }
        });
    }

    /// Writes the key where it is required or has been set.
    void encode(PropertyList::Dictionary &item) const {
        if (mustBeEncoded()) {
            if (auto value = encodeValue()) {
                item.set(std::string(name().stringValue), *std::move(value));
            }
        }
    }

    /// Of the one default instance, which is never destroyed: copies of it no longer count how many they are.
    void makePermanent() const { declaration_->isPermanent = true; }

    /// What the file may hold for the key. The items that its value consists of are added to `items`.
    [[nodiscard]] KeyDescription describe(Descriptions &items) const {
        KeyDescription description{
            name().stringValue, Decodable<T>::describe(items), {}, requirement(), range()};
        if constexpr (requires { Decodable<T>::asWritten(initialDefaultValue()); }) {
            description.defaultValue = Decodable<T>::asWritten(initialDefaultValue());
        } else {
            description.defaultValue = Decodable<T>::encode(initialDefaultValue());
        }
        return description;
    }

protected:
    static constexpr bool isHeldInPlace = IsHeldInPlace<T>::value;

    struct Declaration {
        Declaration(T value, ConfigCodingKey key, Requirement need, std::optional<ClosedRange> bounds = {},
                    std::optional<ArrayCodingStrategy> arrays = {})
            : defaultValue(std::move(value)),
              name(key),
              requirement(std::move(need)),
              range(bounds),
              strategy(arrays) {}
        T defaultValue;
        ConfigCodingKey name;
        Requirement requirement;
        std::optional<ClosedRange> range;
        std::optional<ArrayCodingStrategy> strategy;
        mutable std::atomic<std::uint32_t> owners = 0;
        mutable bool isPermanent = false; ///< Set before anybody else sees the declaration.

        friend void intrusive_ptr_add_ref(const Declaration *declaration) noexcept {
            if (!declaration->isPermanent) {
                declaration->owners.fetch_add(1, std::memory_order_relaxed);
            }
        }
        friend void intrusive_ptr_release(const Declaration *declaration) noexcept {
            if (!declaration->isPermanent &&
                declaration->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
                delete declaration;
            }
        }
    };

    struct Node : boost::intrusive_ref_counter<Node> {
        template <class Initial>
        explicit Node(Initial &&initial) : value(std::forward<Initial>(initial)) {}
        T value;
    };

    using Held = std::conditional_t<isHeldInPlace, T, boost::intrusive_ptr<Node>>;

    /// The common course of decoding a key; `read` gives what is to be held.
    template <class ReadValue>
    void decodeWith(const PropertyListValue &value, const CodingPath &itemPath, DecodingContext &context,
                    ReadValue read) {
        const CodingPath path(itemPath, name().stringValue);
        try {
            value_ = read(Decoding{value, path, context});
        } catch (...) {
            context.noteFailure(path, value.offset());
            throw;
        }
        valueWasSet_ = true;
        wasGivenValueWhileDecoding_ = true;
    }

    [[nodiscard]] T decodeValue(const Decoding &decoding) const {
        if constexpr (CanBeDecodedAsTexts<T>) {
            if (arrayCodingStrategy()) {
                return decodeAsTexts<T>(decoding);
            }
        }
        T value = Decodable<T>::decode(decoding);
        if constexpr (HasRange<T>) {
            if (range()) {
                checkRange(value, *range(), decoding);
            }
        }
        return value;
    }

    [[nodiscard]] bool mustBeEncoded() const {
        return requirement().type == RequirementType::required || valueWasSet_;
    }

    /// None for an absent optional.
    [[nodiscard]] std::optional<PropertyList> encodeValue() const { return Decodable<T>::encode(rawValue()); }

private:
    explicit KeyWrapper(const Declaration *declaration)
        : declaration_(declaration), value_(undecided(*declaration)) {}

    static Held undecided(const Declaration &declaration) {
        if constexpr (isHeldInPlace) {
            return declaration.defaultValue;
        } else {
            return nullptr;
        }
    }

    boost::intrusive_ptr<const Declaration> declaration_;
    Held value_; // In a place of its own: null while the default stands.
    bool wasGivenValueWhileDecoding_ = false;
    bool valueWasSet_ = false;
};

} // namespace velmar
