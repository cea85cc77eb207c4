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

/// What a property list's file holds, to be read: one tree in a few blocks of memory, whose texts are parts
/// of the bytes wherever they stand there as they are. Its values are valid as long as the document and the
/// bytes are; all but the root, which goes where the document goes, also when it is moved.
class PropertyListDocument {
public:
    enum class Form : std::uint8_t { Xml, Binary };

    /// A key that a dictionary of the file gives more than once; the last one counts.
    struct DuplicateKey {
        std::string key;
        std::uint32_t offset = 0; ///< Of the later key.
        std::string path; ///< Dotted path of the dictionary, array indexes as numbers; empty for the root.
    };

    /// What texts and data of the binary form may take beyond one reading of each.
    static constexpr std::size_t maximumSharedBytes = std::size_t{32} << 20;

    /// Reads the XML or the binary form, whichever the bytes are. They must outlive the document. Throws
    /// PropertyListError. Any thread.
    ///
    /// Limits: less than 4 GiB; PropertyList::maximumDepth; PropertyList::maximumValues, each of 24 bytes, or
    /// 48 with its key, and the bytes of data and of texts that do not stand in the file as they are. XML
    /// must be UTF-8; no entities beyond the five of XML and characters by number, nothing is fetched.
    /// References of the binary form may be shared, up to maximumValues and maximumSharedBytes when every one
    /// is followed. So a refusal takes at most the size of the bytes (half as much again for UTF-16), and
    /// some 120 MB for the values and what they share.
    [[nodiscard]] static PropertyListDocument read(std::span<const std::byte> bytes);
    [[nodiscard]] static PropertyListDocument read(std::string_view bytes);
    template <class Bytes>
    requires(!std::is_lvalue_reference_v<Bytes> &&
             (std::same_as<std::remove_cv_t<Bytes>, std::string> ||
              std::same_as<std::remove_cv_t<Bytes>, std::vector<std::byte>>)) static PropertyListDocument
        read(Bytes &&bytes) = delete; // They would be gone.

    /// A made value as a document, for a reader of documents. The value must outlive it.
    [[nodiscard]] static PropertyListDocument of(const PropertyList &value);
    static PropertyListDocument of(const PropertyList &&value) = delete;

    [[nodiscard]] const PropertyListValue &root() const noexcept { return root_; }
    [[nodiscard]] Form form() const noexcept { return form_; }

    /// By offset; as many as fit into 1 MiB.
    [[nodiscard]] const std::vector<DuplicateKey> &duplicates() const noexcept { return duplicates_; }

    /// Tells the lines of offsets; made at each call. The binary form has no lines.
    [[nodiscard]] LineIndex lines() const;

private:
    friend class PropertyListBuilder;
    PropertyListDocument() = default;

    std::unique_ptr<std::pmr::monotonic_buffer_resource> memory_; ///< Of all below the root.
    PropertyListValue root_;
    std::vector<DuplicateKey> duplicates_;
    std::string_view text_; ///< The bytes of the XML form.
    Form form_ = Form::Xml;
};

} // namespace velmar
