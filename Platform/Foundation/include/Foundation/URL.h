#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velmar {

/// A URL as it is written in a configuration or made from a path. An immutable value; equality is that of the
/// text.
///
/// The text is kept as given. What RFC 3986 doesn't allow in it (blanks, other than ASCII characters, braces,
/// a "%" without two digits) is percent-encoded when the URL is used, so "/Users/me/a picture.png" is a good
/// relative URL.
class URL {
public:
    /// Absent for an empty text, for one that is not UTF-8 or holds control characters, and for an authority
    /// that is none ("http://a b/", "http://host:port/"). A text with placeholders, "${NAME}", is taken as it
    /// is and judged when it has been populated and read again.
    [[nodiscard]] static std::optional<URL> fromString(std::string_view text);

    /// The file URL of a path; a relative one is taken below the current directory. The text of a directory's
    /// URL ends in "/".
    [[nodiscard]] static URL file(std::string_view path, bool isDirectory = false);

    /// As written, placeholders included.
    [[nodiscard]] const std::string &text() const noexcept { return text_; }
    /// Percent-encoded, ASCII only.
    [[nodiscard]] std::string absoluteString() const;

    [[nodiscard]] bool hasPlaceholders() const noexcept;
    [[nodiscard]] std::optional<std::string> scheme() const; ///< Lower case; absent for a relative URL.
    [[nodiscard]] bool isFileURL() const;

    /// Percent-decoded, without a trailing slash unless it is "/". For a file URL the path on disk. May hold
    /// any byte.
    [[nodiscard]] std::string path() const;
    [[nodiscard]] std::string lastPathComponent() const; ///< "/" for the root, empty for an empty path.

    /// This URL with the component, which is not encoded yet, put behind its path. It may hold a sub-path
    /// ("a/b"); one that begins with "/" stays below all the same. Query and fragment remain.
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
