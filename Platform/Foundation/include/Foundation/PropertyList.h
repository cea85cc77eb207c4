#pragma once

#include <Foundation/LocalizedError.h>

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace velmar {

/// Why bytes are no property list, with the place where that shows.
class PropertyListError final : public LocalizedError {
public:
    /// `line` counts from 1 and is 0 for the binary form; `offset` is in bytes from the start.
    PropertyListError(const std::string &reason, std::size_t offset, std::size_t line);

    [[nodiscard]] std::size_t offset() const noexcept { return offset_; }
    [[nodiscard]] std::size_t line() const noexcept { return line_; }

private:
    std::size_t offset_;
    std::size_t line_;
};

/// One value of a property list: what its files hold, whatever their form. A plain value; equality looks at kind and
/// contents and not at places in a file. Readers never share parts between values, so a tree is no larger than what
/// was read allows.
class PropertyList {
public:
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
    class Dictionary;

    enum class Kind : std::uint8_t { Boolean, Integer, UnsignedInteger, Real, String, Data, Date, Array, Dictionary };

    static constexpr std::uint32_t noOffset = std::numeric_limits<std::uint32_t>::max();

    PropertyList(); ///< An empty dictionary.
    PropertyList(bool value);
    PropertyList(std::int64_t value);
    PropertyList(int value) : PropertyList(static_cast<std::int64_t>(value)) {}
    PropertyList(std::uint64_t value); ///< Kind Integer where it fits, UnsignedInteger above 2^63 - 1.
    PropertyList(double value);
    PropertyList(std::string value);
    PropertyList(std::string_view value);
    PropertyList(const char *value);
    PropertyList(Data value);
    PropertyList(Date value);
    PropertyList(Array value);
    PropertyList(Dictionary value);
    PropertyList(const PropertyList &);
    PropertyList(PropertyList &&) noexcept;
    PropertyList &operator=(const PropertyList &);
    PropertyList &operator=(PropertyList &&) noexcept;
    ~PropertyList();

    [[nodiscard]] Kind kind() const noexcept;

    /// Each gives the value where it is of that kind, otherwise null. An Integer is never a Boolean or a Real here:
    /// what counts as what is the reader's decision.
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

    /// Where the value stands in the bytes that it was read from, in bytes; noOffset for a value that was made.
    [[nodiscard]] std::uint32_t offset() const noexcept { return offset_; }
    void setOffset(std::uint32_t offset) noexcept { offset_ = offset; }

    bool operator==(const PropertyList &other) const;

    /// A short text for messages, in the manner of `{Size = 12; Items = [a, b]}`.
    [[nodiscard]] std::string text() const;

    /// A key that a dictionary of the file gives more than once; the last one counts.
    struct DuplicateKey {
        std::string key;
        std::uint32_t offset = noOffset; ///< Of the later key.
        std::string path;                ///< Dotted path of the dictionary, array indexes as numbers.
    };

    /// What a reader found beside the value.
    struct Document;

    /// Reads the XML or the binary form, whichever the bytes are. Throws PropertyListError.
    /// Limits: depth 256; XML must be UTF-8; nothing is fetched, no entities beyond the five of XML and characters by
    /// number. Any thread.
    [[nodiscard]] static Document read(std::span<const std::byte> bytes);
    [[nodiscard]] static Document read(std::string_view bytes);

    /// Writes the XML form, indented by tabs, with the usual document type line, or the binary form ("bplist00").
    /// Throws PropertyListError for a depth beyond 256.
    [[nodiscard]] std::string xml() const;
    [[nodiscard]] std::vector<std::byte> binary() const;

private:
    struct Storage;
    std::variant<bool, std::int64_t, std::uint64_t, double, std::string, Data, Date, Array,
                 std::vector<std::pair<std::string, PropertyList>>>
        value_; // The implementer may change the representation behind these operations.
    std::uint32_t offset_ = noOffset;
};

} // namespace velmar
