#pragma once

#include <Configuration/KeyHolder.h>
#include <Configuration/PopulatableValue.h>

#include <optional>
#include <type_traits>
#include <utility>

namespace velmar {

// Defined in KeyCoding.h.
template <class Key>
struct KeyCoding;

/// Whether a holder stores values of T in itself. Other values are stored in a separate node.
template <class T>
struct IsHeldInPlace : std::bool_constant<std::is_arithmetic_v<T> || std::is_enum_v<T>> {};
template <class T>
struct IsHeldInPlace<std::optional<T>> : IsHeldInPlace<T> {};

/// Holds one key of an item: its declaration and its value.
///
///     struct SizeItem {
///         static constexpr std::string_view typeName = "SizeItem";
///         KeyWrapper<double> _height{0.0, "Height", required};
///         KeyWrapper<double> _width{0.0, "Width", required};
///     };
///
/// All copies of a default instance share its declarations (default, name, requirement, range). An instance
/// has its value and two flags. A number or an enumeration is stored in the holder. Any other value is stored
/// in a separate node, shared between copies until one is set. Such a type may be incomplete where the item
/// is declared, copied and destroyed; reading and setting the key need the complete type. Calling a holder
/// reads it: `size._height()`.
///
/// Any thread may read a decoded holder. Only the owner of an item without other readers may set a key.
///
/// KeyCoding.h decodes, encodes and describes a key. The sources that instantiate the coding of an item
/// include it; the headers of items don't.
template <class T>
class KeyWrapper : public KeyHolderOf<std::conditional_t<IsHeldInPlace<T>::value, T, SharedValuePointer>> {
    static constexpr bool isHeldInPlace = IsHeldInPlace<T>::value;
    using Node = SharedValueOf<T>;
    using Held = std::conditional_t<isHeldInPlace, T, SharedValuePointer>;
    using Holder = KeyHolderOf<Held>;

public:
    using Value = T;

    /// The result of reading: a new value for types with texts, which pass through the plugins; otherwise a
    /// reference to the stored value.
    using Read = std::conditional_t<Populatable<T>, T, const T &>;

    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement)
        : Holder(held(std::move(defaultValue)), name, requirement) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement, ClosedRange range)
        : Holder(held(std::move(defaultValue)), name, requirement, range) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement,
               ArrayCodingStrategy strategy)
        : Holder(held(std::move(defaultValue)), name, requirement, {}, strategy) {}
    /// Declares the default T{}: absent, empty, or the default item.
    KeyWrapper(ConfigCodingKey name, const Requirement &requirement) : Holder(Held{}, name, requirement) {}

    /// Returns the value, after all plugins if its type can contain texts.
    Read operator()() const { return wrappedValue(); }
    [[nodiscard]] Read wrappedValue() const {
        if constexpr (Populatable<T>) {
            return pluggedValue();
        } else {
            return rawValue();
        }
    }

    /// Returns the value after all plugins.
    [[nodiscard]] T pluggedValue() const { return plugged(rawValue()); }

    /// Returns the value without plugins, as given in the file or set in code.
    [[nodiscard]] const T &rawValue() const { return valueOf(value_); }

    /// Sets the value in code.
    void set(T value) {
        value_ = held(std::move(value));
        this->noteSet(true);
    }

    /// Changes the value in place; other copies of the holder keep theirs.
    template <class Change>
    void modify(Change change) {
        if constexpr (isHeldInPlace) {
            change(value_);
        } else {
            if (!value_ || value_->use_count() > 1) {
                value_ = held(rawValue());
            }
            change(static_cast<Node &>(*value_).value);
        }
        this->noteSet(true);
    }

    /// Takes the value of the same key of a parent model. The key doesn't count as set, so that encoding
    /// writes the model as it was given.
    void inherit(const KeyWrapper &parent) { value_ = parent.value_; }

    /// Restores the default. wasGivenValueWhileDecoding() stays unchanged.
    void reset() {
        value_ = this->defaultHeld();
        this->noteSet(false);
    }

    [[nodiscard]] const T &initialDefaultValue() const { return valueOf(this->defaultHeld()); }

private:
    template <class Key>
    friend struct KeyCoding;

    using Holder::value_;

    static Held held(T value) {
        if constexpr (isHeldInPlace) {
            return value;
        } else {
            return Held(new Node(std::move(value)));
        }
    }

    static const T &valueOf(const Held &held) {
        if constexpr (isHeldInPlace) {
            return held;
        } else {
            if constexpr (std::is_default_constructible_v<T>) {
                if (!held) {
                    return emptyValue();
                }
            }
            return static_cast<const Node &>(*held).value;
        }
    }

    /// Returns the default of all keys of this type that declare none. Never destroyed, because other threads
    /// may read it during process exit.
    static const T &emptyValue() {
        static const T &value = *new T{};
        return value;
    }
};

} // namespace velmar
