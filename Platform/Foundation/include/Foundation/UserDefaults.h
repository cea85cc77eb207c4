#pragma once

#include <Foundation/FileManager.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The stored settings of one suite and one user: texts by key in a property list, "Velmar/{suite}.plist" in
/// UserDirectories::configuration(). Read at each use, so what another process stored is seen. Any thread.
///
/// A file that is no property list, or above one megabyte, counts as empty; the next write puts it aside
/// beside the new one, under its name with ".damaged-" and six characters.
class UserDefaults {
public:
    /// `suite` is one file name.
    explicit UserDefaults(std::string_view suite);

    /// Absent if there is no such key, no such file, or the value is no text.
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;

    /// Other keys remain. Throws FileError where the file cannot be written, or not with this text (one that
    /// is not UTF-8 or holds control characters), or is held by another process for more than two seconds;
    /// the former content is then untouched.
    void set(std::string_view key, std::string_view value);

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

private:
    std::string directory_;
    std::string path_;
};

} // namespace velmar
