#pragma once

#include <Foundation/PropertyList.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace velmar {

/// A key for lookups, with a fingerprint that differs for most other keys. Doesn't own the text.
class PropertyListKey {
public:
    constexpr PropertyListKey() = default;
    constexpr PropertyListKey(std::string_view text) noexcept // NOLINT(google-explicit-constructor)
        : text_(text.data()),
          size_(static_cast<std::uint32_t>(text.size())),
          fingerprint_(fingerprintOf(text)) {}
    constexpr PropertyListKey(const char *text) noexcept // NOLINT(google-explicit-constructor)
        : PropertyListKey(std::string_view(text)) {}

    [[nodiscard]] constexpr std::string_view text() const noexcept { return {text_, size_}; }

    constexpr bool operator==(const PropertyListKey &other) const noexcept {
        return fingerprint_ == other.fingerprint_ && text() == other.text();
    }

private:
    /// Combines the length and three characters. Colliding keys only cost full comparisons.
    static constexpr std::uint32_t fingerprintOf(std::string_view text) noexcept {
        const auto at = [text](std::size_t index) {
            return std::uint32_t{static_cast<unsigned char>(text[index])};
        };
        return text.empty() ? 0
                            : static_cast<std::uint32_t>(text.size()) ^ at(0) << 8 ^
                                  at(text.size() / 2) << 16 ^ at(text.size() - 1) << 24;
    }

    const char *text_ = nullptr;
    std::uint32_t size_ = 0;
    std::uint32_t fingerprint_ = 0;
};

/// A read-only value of a PropertyListDocument: 24 bytes that own nothing. The value and everything it
/// returns are valid as long as the document and its source bytes.
class PropertyListValue {
public:
    using Kind = PropertyList::Kind;
    using Date = PropertyList::Date;
    using Data = std::span<const std::byte>;

    struct Entry;

    /// Creates an empty dictionary.
    PropertyListValue() noexcept : entries_(nullptr), kind_(Kind::Dictionary) {}
    explicit PropertyListValue(bool value) noexcept : boolean_(value), kind_(Kind::Boolean) {}
    explicit PropertyListValue(std::int64_t value) noexcept : integer_(value), kind_(Kind::Integer) {}
    /// Kind Integer up to 2^63 - 1, otherwise UnsignedInteger.
    explicit PropertyListValue(std::uint64_t value) noexcept;
    explicit PropertyListValue(double value) noexcept : real_(value), kind_(Kind::Real) {}
    explicit PropertyListValue(Date value) noexcept
        : real_(value.secondsSinceReferenceDate), kind_(Kind::Date) {}
    explicit PropertyListValue(std::string_view value) noexcept
        : text_(value.data()), size_(static_cast<std::uint32_t>(value.size())), kind_(Kind::String) {}
    explicit PropertyListValue(Data value) noexcept
        : data_(value.data()), size_(static_cast<std::uint32_t>(value.size())), kind_(Kind::Data) {}
    explicit PropertyListValue(std::span<const PropertyListValue> elements) noexcept
        : elements_(elements.data()),
          size_(static_cast<std::uint32_t>(elements.size())),
          kind_(Kind::Array) {}
    explicit PropertyListValue(std::span<const Entry> entries) noexcept;
    PropertyListValue(const char *) = delete; // would convert to bool

    [[nodiscard]] Kind kind() const noexcept { return kind_; }

    /// Typed access: each function returns the value if it is of that kind, otherwise std::nullopt. An
    /// Integer is never converted to a Boolean or a Real; conversions are left to the caller.
    [[nodiscard]] std::optional<bool> boolean() const noexcept {
        return kind_ == Kind::Boolean ? std::optional(boolean_) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::int64_t> integer() const noexcept {
        return kind_ == Kind::Integer ? std::optional(integer_) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::uint64_t> unsignedInteger() const noexcept {
        return kind_ == Kind::UnsignedInteger ? std::optional(unsignedInteger_) : std::nullopt;
    }
    [[nodiscard]] std::optional<double> real() const noexcept {
        return kind_ == Kind::Real ? std::optional(real_) : std::nullopt;
    }
    [[nodiscard]] std::optional<Date> date() const noexcept {
        return kind_ == Kind::Date ? std::optional(Date{real_}) : std::nullopt;
    }
    [[nodiscard]] std::optional<std::string_view> string() const noexcept {
        return kind_ == Kind::String ? std::optional(std::string_view(text_, size_)) : std::nullopt;
    }
    [[nodiscard]] std::optional<Data> data() const noexcept {
        return kind_ == Kind::Data ? std::optional(Data(data_, size_)) : std::nullopt;
    }

    [[nodiscard]] bool isArray() const noexcept { return kind_ == Kind::Array; }
    [[nodiscard]] bool isDictionary() const noexcept { return kind_ == Kind::Dictionary; }

    /// Returns the elements of an array; empty for other kinds.
    [[nodiscard]] std::span<const PropertyListValue> elements() const noexcept;
    /// Returns the entries of a dictionary in the order of the file; empty for other kinds.
    [[nodiscard]] std::span<const Entry> entries() const noexcept;
    /// Returns the value of a key in a dictionary, or nullptr. Lookup is linear, which suits the few keys of
    /// an item; iterate over large dictionaries instead.
    [[nodiscard]] const PropertyListValue *find(const PropertyListKey &key) const noexcept;

    /// Returns the offset of the value in the source bytes; 0 for a value that was not read.
    [[nodiscard]] std::uint32_t offset() const noexcept { return offset_; }
    void setOffset(std::uint32_t offset) noexcept { offset_ = offset; }

    /// Returns a short text for messages, such as `{Size = 12; Items = [a, b]}`.
    [[nodiscard]] std::string text() const;

private:
    union {
        bool boolean_;
        std::int64_t integer_;
        std::uint64_t unsignedInteger_;
        double real_;
        const char *text_;
        const std::byte *data_;
        const PropertyListValue *elements_;
        const Entry *entries_;
    };
    std::uint32_t size_ = 0;
    std::uint32_t offset_ = 0;
    Kind kind_;
};

struct PropertyListValue::Entry {
    PropertyListKey key;
    std::uint32_t keyOffset = 0; ///< Offset of the key in the source bytes.
    PropertyListValue value;
};

// The memory limits of PropertyListDocument::read depend on these sizes.
static_assert(sizeof(PropertyListValue) == 24 && sizeof(PropertyListValue::Entry) == 48);

inline PropertyListValue::PropertyListValue(std::span<const Entry> entries) noexcept
    : entries_(entries.data()), size_(static_cast<std::uint32_t>(entries.size())), kind_(Kind::Dictionary) {}

inline std::span<const PropertyListValue> PropertyListValue::elements() const noexcept {
    return isArray() ? std::span(elements_, size_) : std::span<const PropertyListValue>();
}

inline std::span<const PropertyListValue::Entry> PropertyListValue::entries() const noexcept {
    return isDictionary() ? std::span(entries_, size_) : std::span<const Entry>();
}

inline const PropertyListValue *PropertyListValue::find(const PropertyListKey &key) const noexcept {
    for (const Entry &entry : entries()) {
        if (entry.key == key) {
            return &entry.value;
        }
    }
    return nullptr;
}

} // namespace velmar
