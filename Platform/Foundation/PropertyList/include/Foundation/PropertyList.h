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

/// One value of a property list, to be made, changed and written: a plain value that owns all its parts.
/// Whoever only reads a file takes PropertyListDocument, which owns nothing value by value.
class PropertyList {
public:
    static constexpr std::size_t maximumDepth = 256;        ///< Of arrays and dictionaries within each other.
    static constexpr std::size_t maximumValues = 1'000'000; ///< In what is read, the root included.

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

    /// Values by key, in the order of the file or of their setting. Looking up is linear, which suits the few
    /// keys of an item; iterate where there are thousands. Equality ignores the order.
    class Dictionary {
    public:
        struct Entry;

        Dictionary() noexcept;
        /// Takes entries as they are: their keys must differ.
        explicit Dictionary(std::vector<Entry> entries) noexcept;
        Dictionary(const Dictionary &);
        Dictionary(Dictionary &&) noexcept;
        Dictionary &operator=(const Dictionary &);
        Dictionary &operator=(Dictionary &&) noexcept;
        ~Dictionary();

        /// The value of the key, or null.
        [[nodiscard]] const PropertyList *find(std::string_view key) const noexcept;
        [[nodiscard]] PropertyList *find(std::string_view key) noexcept;

        /// Replaces the value of the key at its place, or adds it at the end.
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

    PropertyList() noexcept; ///< An empty dictionary.
    PropertyList(bool value) noexcept;
    PropertyList(std::int64_t value) noexcept;
    PropertyList(int value) noexcept : PropertyList(static_cast<std::int64_t>(value)) {}
    PropertyList(
        std::uint64_t value) noexcept; ///< Kind Integer where it fits, UnsignedInteger above 2^63 - 1.
    PropertyList(double value) noexcept;
    PropertyList(std::string value) noexcept;
    PropertyList(std::string_view value);
    PropertyList(const char *value);
    PropertyList(Data value) noexcept;
    PropertyList(Date value) noexcept;
    PropertyList(Array value) noexcept;
    PropertyList(Dictionary value) noexcept;
    explicit PropertyList(const PropertyListValue &value); ///< A copy of what was read.
    PropertyList(const PropertyList &other);
    PropertyList(PropertyList &&other) noexcept;
    PropertyList &operator=(const PropertyList &other);
    PropertyList &operator=(PropertyList &&other) noexcept;
    ~PropertyList();

    [[nodiscard]] Kind kind() const noexcept { return kind_; }

    /// Each gives the value where it is of that kind, otherwise null. An Integer is never a Boolean or a Real
    /// here: what counts as what is the reader's decision.
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

    /// A real that is not a number equals another one, so that a value always equals its copy.
    bool operator==(const PropertyList &other) const;

    /// A short text for messages, in the manner of `{Size = 12; Items = [a, b]}`.
    [[nodiscard]] std::string text() const;

    /// A copy of the document that the bytes are; see PropertyListDocument::read.
    [[nodiscard]] static PropertyList read(std::span<const std::byte> bytes);
    [[nodiscard]] static PropertyList read(std::string_view bytes);

    /// Writes the XML form, indented by tabs, with the usual document type line, or the binary form
    /// ("bplist00"). What is written reads back equal within the limits above, but for dates in XML, which
    /// have whole seconds there. Throws PropertyListError for what a form cannot hold: a depth beyond
    /// maximumDepth, text that is not UTF-8, a date that is not a number; in XML also control characters and
    /// dates outside of the years 0 to 9999.
    [[nodiscard]] std::string xml() const;
    [[nodiscard]] std::vector<std::byte> binary() const;

private:
    void destroy() noexcept;
    /// Becomes a copy of `other`, or takes its value where it may be moved from; nothing is held before.
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
