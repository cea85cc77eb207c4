#pragma once

#include <Foundation/PropertyListError.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

class PropertyListValue;

/// A value of a property list that can be created, changed and written. Owns all its parts. To read a file
/// only, use PropertyListDocument, which needs less memory.
class PropertyList {
public:
    static constexpr std::size_t maximumDepth = 256; ///< Maximum nesting of arrays and dictionaries.
    /// Maximum number of values in a document, including the root.
    static constexpr std::size_t maximumValues = 1'000'000;

    /// Bytes of a <data> element.
    struct Data {
        std::vector<std::byte> bytes;
        bool operator==(const Data &) const = default;
    };

    /// A point in time, as seconds since 2001-01-01T00:00:00Z (the epoch of the format).
    struct Date {
        double secondsSinceReferenceDate = 0;
        bool operator==(const Date &) const = default;
    };

    using Array = std::vector<PropertyList>;

    /// Values by key, in the order of the file or of insertion. Lookup is linear, which suits the few keys of
    /// an item; iterate over large dictionaries instead. Equality ignores the order.
    class Dictionary {
    public:
        struct Entry;

        Dictionary() noexcept;
        /// Takes the entries unchecked. Their keys must be unique.
        explicit Dictionary(std::vector<Entry> entries) noexcept;
        Dictionary(const Dictionary &);
        Dictionary(Dictionary &&) noexcept;
        Dictionary &operator=(const Dictionary &);
        Dictionary &operator=(Dictionary &&) noexcept;
        ~Dictionary();

        /// Returns the value of the key, or nullptr.
        [[nodiscard]] const PropertyList *find(std::string_view key) const noexcept;
        [[nodiscard]] PropertyList *find(std::string_view key) noexcept;

        /// Replaces the value of the key in place, or appends the key.
        void set(std::string_view key, PropertyList value);

        [[nodiscard]] std::size_t size() const noexcept;
        [[nodiscard]] bool empty() const noexcept { return size() == 0; }
        [[nodiscard]] const Entry *begin() const noexcept;
        [[nodiscard]] const Entry *end() const noexcept;

        bool operator==(const Dictionary &other) const;

    private:
        std::vector<Entry> entries_;
    };

    enum class Kind : std::uint8_t {
        Boolean,
        Integer,
        UnsignedInteger,
        Real,
        String,
        Data,
        Date,
        Array,
        Dictionary
    };

    PropertyList() noexcept; ///< Creates an empty dictionary.
    PropertyList(bool value) noexcept;
    PropertyList(std::int64_t value) noexcept;
    PropertyList(int value) noexcept : PropertyList(static_cast<std::int64_t>(value)) {}
    PropertyList(std::uint64_t value) noexcept; ///< Kind Integer up to 2^63 - 1, otherwise UnsignedInteger.
    PropertyList(double value) noexcept;
    PropertyList(std::string value) noexcept;
    PropertyList(std::string_view value);
    PropertyList(const char *value);
    PropertyList(Data value) noexcept;
    PropertyList(Date value) noexcept;
    PropertyList(Array value) noexcept;
    PropertyList(Dictionary value) noexcept;
    explicit PropertyList(const PropertyListValue &value); ///< A deep copy.
    PropertyList(const PropertyList &other);
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(const PropertyList &other);
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    [[nodiscard]] Kind kind() const noexcept { return kind_; }

    /// Typed access: each function returns the value if it is of that kind, otherwise nullptr. An Integer is
    /// never converted to a Boolean or a Real; conversions are left to the caller.
    [[nodiscard]] const bool *boolean() const noexcept;
    [[nodiscard]] const std::int64_t *integer() const noexcept;
    [[nodiscard]] const std::uint64_t *unsignedInteger() const noexcept;
    [[nodiscard]] const double *real() const noexcept;
    [[nodiscard]] const std::string *string() const noexcept;
    [[nodiscard]] const Data *data() const noexcept;
    [[nodiscard]] const Date *date() const noexcept;
    [[nodiscard]] const Array *array() const noexcept;
    [[nodiscard]] const Dictionary *dictionary() const noexcept;
    [[nodiscard]] Array *array() noexcept;
    [[nodiscard]] Dictionary *dictionary() noexcept;

    /// NaN equals NaN, so that a value always equals its copy.
    bool operator==(const PropertyList &other) const;

    /// Returns a short text for messages, such as `{Size = 12; Items = [a, b]}`.
    [[nodiscard]] std::string text() const;

    /// Reads a document and copies it; see PropertyListDocument::read.
    [[nodiscard]] static PropertyList read(std::span<const std::byte> bytes);
    [[nodiscard]] static PropertyList read(std::string_view bytes);

    /// Writes the XML form, indented by tabs and with the usual document type, or the binary form
    /// ("bplist00"). Reading the result yields an equal value if it is within the limits above, except that
    /// XML stores whole seconds of dates. Throws PropertyListError for a depth beyond maximumDepth, text that
    /// is not UTF-8 and a date that is not a number; in XML also for control characters and dates outside of
    /// the years 0 to 9999.
    [[nodiscard]] std::string xml() const;
    [[nodiscard]] std::vector<std::byte> binary() const;

private:
    void destroy() noexcept;
    /// Copies or moves `other` into this object, which must hold no value.
    template <class Other>
    void construct(Other &&other);

    union {
        bool boolean_;
        std::int64_t integer_;
        std::uint64_t unsignedInteger_;
        double real_;
        std::string string_;
        Data data_;
        Date date_;
        Array array_;
        Dictionary dictionary_;
    };
    Kind kind_;
};

struct PropertyList::Dictionary::Entry {
    std::string key;
    PropertyList value;
};

inline std::size_t PropertyList::Dictionary::size() const noexcept {
    return entries_.size();
}
inline const PropertyList::Dictionary::Entry *PropertyList::Dictionary::begin() const noexcept {
    return entries_.data();
}
inline const PropertyList::Dictionary::Entry *PropertyList::Dictionary::end() const noexcept {
    return entries_.data() + entries_.size();
}

} // namespace velmar
