#pragma once

#include <Configuration/KeyHolder.h>
#include <Configuration/PopulatableValue.h>

#include <optional>
#include <type_traits>
#include <utility>

namespace velmar {

// In KeyCoding.h.
template <class Key>
struct KeyCoding;

/// Whether a holder keeps a value in itself. Other values stand beside their holders.
template <class T>
struct IsHeldInPlace : std::bool_constant<std::is_arithmetic_v<T> || std::is_enum_v<T>> {};
template <class T>
struct IsHeldInPlace<std::optional<T>> : IsHeldInPlace<T> {};

/// Holds one key of an item: its declaration and the value that the file gives.
///
///     struct SizeItem {
///         static constexpr std::string_view typeName = "SizeItem";
///         KeyWrapper<double> _height{0.0, "Height", required};
///         KeyWrapper<double> _width{0.0, "Width", required};
///     };
///
/// All copies of a default instance share its declarations (default, name, requirement, range). An instance
/// has its value and two flags. A number or an enumeration stands in the holder. Any other value stands
/// beside it, shared between copies until one is set. Such a type may be incomplete where the item is
/// declared, copied and destroyed; reading and setting the key need the complete type. A holder is called to
/// read it: `size._height()`.
///
/// Any thread may read a decoded holder. Only the owner of an item that has no other readers may set a key.
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

    /// The result of reading: texts pass through the plugins and are new values, all else is as it is held.
    using Read = std::conditional_t<Populatable<T>, T, const T &>;

    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement)
        : Holder(held(std::move(defaultValue)), name, requirement) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement, ClosedRange range)
        : Holder(held(std::move(defaultValue)), name, requirement, range) {}
    KeyWrapper(T defaultValue, ConfigCodingKey name, const Requirement &requirement,
               ArrayCodingStrategy strategy)
        : Holder(held(std::move(defaultValue)), name, requirement, {}, strategy) {}
    /// With the default T{}: absent, empty, or the default item.
    KeyWrapper(ConfigCodingKey name, const Requirement &requirement) : Holder(Held{}, name, requirement) {}

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
    [[nodiscard]] const T &rawValue() const { return valueOf(value_); }

    /// Assigns by code.
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

    /// Takes the value of another holder of the same key, for a model that inherits it. It does not count as
    /// set, so that the model is written as it was given.
    void inherit(const KeyWrapper &parent) { value_ = parent.value_; }

    /// Back to the default. Whether the file gave the key stays known.
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

    /// The default of all keys of this type that declare none. Never destroyed, because other threads may
    /// read it while the process ends.
    static const T &emptyValue() {
        static const T &value = *new T{};
        return value;
    }
};

} // namespace velmar
