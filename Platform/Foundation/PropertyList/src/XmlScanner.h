#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Goes once through the text of an XML property list, without building a tree of it: the tags, the text of
/// elements, and what stands around them. It takes no more of XML than property lists use: no entity
/// declarations, attributes on the root alone. Everything throws PropertyListError.
///
/// The text must be UTF-8 of XML's characters and outlive the scanner.
class XmlScanner {
public:
    struct Tag {
        enum class Form { Start, End, Empty };

        std::string_view name;
        std::size_t offset; ///< Of its '<'.
        Form form;
    };

    explicit XmlScanner(std::string_view text) noexcept : text_(text) {}

    /// Passes over the byte order mark, the declaration and the document type, up to the root's start tag and
    /// its attributes.
    [[nodiscard]] Tag root();

    /// The next tag; between it and the one before may be white space, comments and processing instructions.
    [[nodiscard]] Tag next();

    /// The text of an element whose start tag was the last one, and passes over its end tag. References are
    /// replaced, lines end in line feeds. A part of the whole text, or replaced: then valid until the next
    /// call.
    [[nodiscard]] std::string_view text(const Tag &start);
    [[nodiscard]] bool isReplaced(std::string_view text) const noexcept {
        return text.data() == decoded_.data();
    }

    /// Checks that nothing follows the root's end tag.
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
    /// The byte so far on, or NUL, which no text holds, at the end.
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
