#pragma once

#include <Foundation/LineIndex.h>
#include <Foundation/PropertyListValue.h>

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace velmar {

/// A read-only property list: one tree in a few memory blocks. Its texts are views of the source bytes unless
/// they had to be decoded. Values are valid as long as the document and the bytes. Moving the document keeps
/// them valid, except a reference to the root.
class PropertyListDocument {
public:
    enum class Form : std::uint8_t { Xml, Binary };

    /// A key that occurs more than once in a dictionary. The last occurrence counts.
    struct DuplicateKey {
        std::string key;
        std::uint32_t offset = 0; ///< Offset of the later key.
        /// Dotted path of the dictionary with array indexes as numbers; empty for the root.
        std::string path;
    };

    /// Limit in bytes of repeatedly referenced texts and data of the binary form, beyond their first use.
    static constexpr std::size_t maximumSharedBytes = std::size_t{32} << 20;

    /// Reads the XML or the binary form, detected from the bytes. The bytes must outlive the document.
    /// Thread-safe. Throws PropertyListError.
    ///
    /// Limits: less than 4 GiB of bytes, PropertyList::maximumDepth and PropertyList::maximumValues. A value
    /// takes 24 bytes, 48 with its key, in addition to decoded texts. XML must be UTF-8; only the five
    /// predefined entities and character references are known, and nothing is fetched. Shared references of
    /// the binary form are limited by maximumValues and maximumSharedBytes. A document that is rejected
    /// therefore takes at most the size of its bytes (1.5 times for UTF-16) plus about 120 MB for values and
    /// shared texts.
    [[nodiscard]] static PropertyListDocument read(std::span<const std::byte> bytes);
    [[nodiscard]] static PropertyListDocument read(std::string_view bytes);
    template <class Bytes>
    requires(!std::is_lvalue_reference_v<Bytes> &&
             (std::same_as<std::remove_cv_t<Bytes>, std::string> ||
              std::same_as<std::remove_cv_t<Bytes>, std::vector<std::byte>>)) static PropertyListDocument
        read(Bytes &&bytes) = delete; // the document would refer to destroyed bytes

    /// Wraps a value for functions that read documents. The value must outlive the document.
    [[nodiscard]] static PropertyListDocument of(const PropertyList &value);
    static PropertyListDocument of(const PropertyList &&value) = delete;

    [[nodiscard]] const PropertyListValue &root() const noexcept { return root_; }
    [[nodiscard]] Form form() const noexcept { return form_; }

    /// Returns the duplicate keys, sorted by offset; at most 1 MiB of them.
    [[nodiscard]] const std::vector<DuplicateKey> &duplicates() const noexcept { return duplicates_; }

    /// Builds an index of the lines at each call. The index of a binary form has no lines.
    [[nodiscard]] LineIndex lines() const;

private:
    friend class PropertyListBuilder;
    PropertyListDocument() = default;

    std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_; ///< Owns everything below the root.
    PropertyListValue root_;
    std::vector<DuplicateKey> duplicates_;
    std::string_view text_; ///< Bytes of the XML form; empty for the binary form.
    Form form_ = Form::Xml;
};

} // namespace velmar
