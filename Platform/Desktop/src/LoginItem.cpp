#include <Desktop/LoginItem.h>

#include <Foundation/UserDirectories.h>

namespace velmar {

namespace {

bool isAlready(const FileManager &fileManager, const std::string &path, const std::string &contents) {
    try {
        return fileManager.contents(path, contents.size()) == contents;
    } catch (const FileError &) {
        return false;
    }
}

// Quotes an argument of Exec. The value is unescaped twice: as a string of the file and as a command line,
// where "%" starts a field code.
std::string quoted(const std::string &argument) {
    std::string text = "\"";
    for (const char character : argument) {
        switch (character) {
        case '"':
        case '`':
        case '$':
            text += "\\\\";
            text += character;
            break;
        case '\\':
            text += "\\\\\\\\";
            break;
        case '%':
            text += "%%";
            break;
        default:
            text += character;
        }
    }
    return text + '"';
}

} // namespace

LoginItem::LoginItem(std::string directory, const FileManager &fileManager)
    : directory_(std::move(directory)),
      path_(directory_ + "/com.nurvan.velmar.desktop"),
      fileManager_(fileManager) {}

std::string LoginItem::userDirectory() {
    return UserDirectories::configuration() + "/autostart";
}

void LoginItem::enable(std::span<const std::string> command) const {
    std::string line;
    for (const std::string &argument : command) {
        line += (line.empty() ? "" : " ") + quoted(argument);
    }
    const std::string entry = "[Desktop Entry]\nType=Application\nName=Velmar\nExec=" + line + "\n";
    // Avoids disk writes, which would delay the first paint.
    if (!isAlready(fileManager_, path_, entry)) {
        fileManager_.createDirectory(directory_, 0700);
        fileManager_.writeAtomically(path_, entry, 0644);
    }
}

void LoginItem::disable() const {
    try {
        fileManager_.removeItem(path_);
    } catch (const FileError &) {
        if (fileManager_.fileExists(path_)) {
            throw;
        }
    }
}

} // namespace velmar
