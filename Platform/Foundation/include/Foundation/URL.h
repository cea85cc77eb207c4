#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velmar {

/// A URL from a configuration or a path. An immutable value; equality compares the text.
///
/// The text is kept as given. Characters that RFC 3986 doesn't allow (blanks, non-ASCII characters, braces, a
/// "%" without two digits) are percent-encoded when the URL is used, so "/Users/me/a picture.png" is a valid
/// relative URL.
class URL {
public:
    /// Parses a text. Returns std::nullopt if it is empty, is not UTF-8, contains control characters or has
    /// an invalid authority ("http://a b/", "http://host:port/"). The authority of a text with placeholders
    /// ("${NAME}") is not checked.
    [[nodiscard]] static std::optional<URL> fromString(std::string_view text);

    /// Returns the file URL of a path. A relative path is resolved against the current directory. The text of
    /// a directory's URL ends in "/".
    [[nodiscard]] static URL file(std::string_view path, bool isDirectory = false);

    /// Returns the text as written, including placeholders.
    [[nodiscard]] const std::string &text() const noexcept { return text_; }
    /// Returns the percent-encoded URL, ASCII only.
    [[nodiscard]] std::string absoluteString() const;

    [[nodiscard]] bool hasPlaceholders() const noexcept;
    /// Returns the scheme in lower case, or std::nullopt for a relative URL.
    [[nodiscard]] std::optional<std::string> scheme() const;
    [[nodiscard]] bool isFileURL() const;

    /// Returns the percent-decoded path, without trailing slashes unless it is "/". The path of a file
    /// URL is the path on disk. May contain any byte.
    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::string lastPathComponent() const; ///< Returns "/" for the root, "" for an empty path.

    /// Returns this URL with an unencoded component appended to the path. The component may be a sub-path
    /// ("a/b"); leading slashes are dropped. Query and fragment are kept.
    [[nodiscard]] URL appendingPathComponent(std::string_view component, bool isDirectory = false) const;

    bool operator==(const URL &) const = default;

private:
    explicit URL(std::string text) : text_(std::move(text)) {}
    std::string text_;
};

} // namespace velmar

template <>
struct std::hash<velmar::URL> {
    std::size_t operator()(const velmar::URL &url) const noexcept {
        return std::hash<std::string>()(url.text());
    }
};
