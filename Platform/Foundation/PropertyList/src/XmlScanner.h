#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// A pull scanner for XML property lists: returns tags and the text of elements without building a tree.
/// Supports only the XML that property lists use: no entity declarations, and attributes on the root only.
/// All functions throw PropertyListError.
///
/// The text must be UTF-8 of characters allowed in XML and must outlive the scanner.
class XmlScanner {
public:
    struct Tag {
        enum class Form { Start, End, Empty };

        std::string_view name;
        std::size_t offset; ///< Offset of its '<'.
        Form form;
    };

    explicit XmlScanner(std::string_view text) noexcept : text_(text) {}

    /// Skips the byte order mark, the XML declaration and the document type. Returns the root's start tag and
    /// skips its attributes.
    [[nodiscard]] Tag root();

    /// Returns the next tag. Skips white space, comments and processing instructions before it.
    [[nodiscard]] Tag next();

    /// Returns the text of the element whose start tag was returned last, and skips its end tag. Replaces
    /// references and normalises line ends to line feeds. The result is a view of the source, or, if
    /// isReplaced(), valid until the next call.
    [[nodiscard]] std::string_view text(const Tag &start);
    [[nodiscard]] bool isReplaced(std::string_view text) const noexcept {
        return text.data() == decoded_.data();
    }

    /// Throws if anything but white space, comments and processing instructions follows the root's end tag.
    void finish();

    [[noreturn]] void fail(std::string_view reason, std::size_t offset) const;

private:
    struct Attribute {
        std::string_view name;
        std::string_view value;
    };

    void declaration();
    void documentType();
    bool skipMiscellaneous();
    void skipPast(std::string_view terminator, std::string_view what);
    void skipWhiteSpace() noexcept;
    /// Returns the byte at `distance` from the position; NUL, which no text contains, at the end.
    [[nodiscard]] char peek(std::size_t distance = 0) const noexcept;
    [[nodiscard]] bool startsWith(std::string_view prefix) const noexcept;
    [[nodiscard]] std::string_view name() noexcept;
    [[nodiscard]] std::optional<Attribute> attribute();
    [[nodiscard]] std::string_view unusualText(const Tag &start, std::size_t begin);
    void appendPlain(std::string_view plain);
    void appendReference();
    [[nodiscard]] char32_t characterOfNumber(std::string_view number) const noexcept;
    [[nodiscard]] bool isNameOf(const Tag &start) const noexcept;
    void endTag(const Tag &start);

    std::string_view text_;
    std::size_t position_ = 0;
    std::string decoded_;
};

} // namespace velmar
