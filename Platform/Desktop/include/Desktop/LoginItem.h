#pragma once

#include <Foundation/FileManager.h>

#include <span>
#include <string>

namespace velmar {

/// The entry by which the desktop starts the application again at the user's next login: a file in the user's
/// autostart directory, as desktops look for it.
class LoginItem {
public:
    /// `directory` holds the entries; `fileManager` must outlive the item.
    explicit LoginItem(std::string directory = userDirectory(),
                       const FileManager &fileManager = FileManager::defaultManager());

    /// "autostart" in UserDirectories::configuration().
    [[nodiscard]] static std::string userDirectory();

    /// Writes the entry, in place of a former one that differs. The command is the absolute path of a program
    /// and its arguments, whatever characters they hold but for line feeds. Throws FileError.
    void enable(std::span<const std::string> command) const;

    /// Removes the entry if there is one. Throws FileError.
    void disable() const;

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

private:
    std::string directory_;
    std::string path_;
    const FileManager &fileManager_;
};

} // namespace velmar
