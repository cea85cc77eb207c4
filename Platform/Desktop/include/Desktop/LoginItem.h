#pragma once

#include <Foundation/FileManager.h>

#include <span>
#include <string>

namespace velmar {

/// The autostart entry that starts the application at the user's next login: a desktop entry in the user's
/// autostart directory.
class LoginItem {
public:
    /// `directory` contains the autostart entries. `fileManager` must outlive the item.
    explicit LoginItem(std::string directory = userDirectory(),
                       const FileManager &fileManager = FileManager::defaultManager());

    /// Returns "autostart" in UserDirectories::configuration().
    [[nodiscard]] static std::string userDirectory();

    /// Writes the entry unless it exists with the same content. `command` is the absolute path of a program
    /// and its arguments, which may contain any characters except line feeds. Throws FileError.
    void enable(std::span<const std::string> command) const;

    /// Removes the entry if it exists. Throws FileError.
    void disable() const;

    [[nodiscard]] const std::string &path() const noexcept { return path_; }

private:
    std::string directory_;
    std::string path_;
    const FileManager &fileManager_;
};

} // namespace velmar
