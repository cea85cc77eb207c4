#pragma once

#include <Foundation/FileManager.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Stored settings of one suite and one user: texts by key in the property list "Velmar/{suite}.plist" in
/// UserDirectories::configuration(). Every access reads the file, so changes by other processes are visible.
/// Thread-safe.
///
/// A file that is not a property list or exceeds one megabyte counts as empty. The next write renames it,
/// appending ".damaged-" and six characters.
class UserDefaults {
public:
    /// `suite` must be a single file name.
    explicit UserDefaults(std::string_view suite);

    /// Returns the text, or std::nullopt if the key or the file is missing, the file can't be read, or the
    /// value is not a text.
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;

    /// Stores one value and keeps the other keys. Throws FileError if the file cannot be written, if another
    /// process locks it for more than two seconds, or if the text is not UTF-8 or contains control
    /// characters. The stored content is then unchanged.
    void set(std::string_view key, std::string_view value);

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

private:
    std::string directory_;
    std::string path_;
};

} // namespace velmar
