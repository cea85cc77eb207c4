#pragma once

#include <Foundation/FileManager.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// The stored settings of one suite and one user: texts by key in a property list,
/// `$XDG_CONFIG_HOME/Velmar/{suite}.plist`
/// (`~/.config` without that variable). Read at each use, so what another process stored is seen. Any thread.
///
/// A file that is no property list, or above one megabyte, counts as empty; the next write puts it aside
/// beside the new one, under its name with ".damaged-" and six characters.
class UserDefaults {
public:
    /// `suite` is one file name.
    explicit UserDefaults(std::string_view suite);

    /// Absent if there is no such key, no such file, or the value is no text.
    [[nodiscard]] std::optional<std::string> string(std::string_view key) const;

    /// Both throw FileError where the file cannot be written; the former content is then untouched. Other
    /// keys remain.
    void set(std::string_view key, std::string_view value);
    void remove(std::string_view key);

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

private:
    std::string directory_;
    std::string path_;
};

} // namespace velmar
