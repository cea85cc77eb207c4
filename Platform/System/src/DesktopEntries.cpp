#include "DesktopEntries.h"

#include "OwnedText.h"

#include <Foundation/FileError.h>
#include <Foundation/FileManager.h>

#include <cstdlib>
#include <optional>
#include <sstream>

#include <sys/stat.h>

namespace velmar {

namespace {

constexpr std::size_t largestEntry = 256 * 1024; // bytes; translations make entries long
constexpr int deepestDirectory = 4;
constexpr std::string_view entrySuffix = ".desktop";

// Returns a zeroed status if the item doesn't exist.
struct stat statusOf(const std::string &path) {
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        status = {};
    }
    return status;
}

// Returns the modification time in nanoseconds.
std::int64_t lastChange(const struct stat &status) {
    return static_cast<std::int64_t>(status.st_mtim.tv_sec) * 1'000'000'000 + status.st_mtim.tv_nsec;
}

// Returns the raw values of the main group by key.
std::map<std::string, std::string> mainGroup(const std::string &content) {
    std::map<std::string, std::string> values;
    std::istringstream lines(content);
    bool isMain = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('[')) {
            isMain = line.starts_with("[Desktop Entry]");
        }
        const std::size_t equals = line.find('=');
        if (!isMain || equals == std::string::npos) {
            continue;
        }
        const std::string key = line.substr(0, line.find_last_not_of(' ', equals - 1) + 1);
        const std::size_t value = line.find_first_not_of(' ', equals + 1);
        values.emplace(key, value == std::string::npos ? "" : line.substr(value));
    }
    return values;
}

// Splits a command into words at blanks. Quotes group words; a backslash escapes within quotes.
std::vector<std::string> words(const std::string &command) {
    std::vector<std::string> result;
    bool isQuoted = false;
    bool isOpen = false;
    for (std::size_t i = 0; i < command.size(); ++i) {
        const char character = command[i];
        if (!isQuoted && (character == ' ' || character == '\t')) {
            isOpen = false;
            continue;
        }
        if (!std::exchange(isOpen, true)) {
            result.emplace_back();
        }
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted && character == '\\' && i + 1 < command.size()) {
            result.back() += command[++i];
        } else {
            result.back() += character;
        }
    }
    return result;
}

struct Start {
    std::string program;
    std::size_t options = 0;
    // False if the command has arguments besides options and files to open, which decide what runs.
    bool isWhole = true;
};

Start startOf(const std::string &command) {
    const std::vector<std::string> all = words(command);
    std::size_t first = 0;
    if (!all.empty() && (all[0] == "env" || all[0] == "/usr/bin/env")) {
        for (first = 1; first < all.size() && all[first].find('=') != std::string::npos;) {
            ++first;
        }
    }
    Start start;
    for (std::size_t i = first; i < all.size(); ++i) {
        if (i == first) {
            start.program = all[i];
        } else if (all[i].starts_with('-')) {
            ++start.options;
        } else if (!all[i].starts_with('%')) {
            start.isWhole = false;
        }
    }
    return start;
}

} // namespace

DesktopEntries::DesktopEntries(std::vector<std::string> directories, std::vector<std::string> executables)
    : directories_(std::move(directories)), executables_(std::move(executables)) {}

std::string DesktopEntries::identifierFor(const std::string &executable) {
    if (!isCurrent()) {
        read();
    }
    const auto found = byExecutable_.find(executable);
    return found == byExecutable_.end() ? "" : found->second.second;
}

bool DesktopEntries::isCurrent() const {
    for (const auto &[path, time] : changes_) {
        if (lastChange(statusOf(path)) != time) {
            return false;
        }
    }
    return !changes_.empty() || directories_.empty();
}

void DesktopEntries::read() {
    changes_.clear();
    seen_.clear();
    visited_.clear();
    byExecutable_.clear();
    for (const std::string &directory : directories_) {
        readDirectory(directory, "", 0);
    }
}

void DesktopEntries::readDirectory(const std::string &path, const std::string &prefix, int depth) {
    // Recorded before reading the entries, so that a concurrent change causes another read.
    const struct stat status = statusOf(path);
    changes_[path] = lastChange(status);
    if (!visited_.emplace(status.st_dev, status.st_ino).second) {
        return;
    }
    const FileManager &files = FileManager::defaultManager();
    try {
        for (const std::string &name : files.contentsOfDirectory(path)) {
            std::string item = path;
            item.append("/").append(name);
            std::string identifier = prefix;
            identifier += name;
            if (name.ends_with(entrySuffix)) {
                readEntry(item, identifier.substr(0, identifier.size() - entrySuffix.size()));
            } else if (depth < deepestDirectory && S_ISDIR(statusOf(item).st_mode)) {
                readDirectory(item, identifier.append("-"), depth + 1);
            }
        }
    } catch (const FileError &) {
        // A missing or unreadable directory counts as empty.
        return;
    }
}

void DesktopEntries::readEntry(const std::string &path, const std::string &identifier) {
    if (!seen_.insert(identifier).second) {
        return;
    }
    std::map<std::string, std::string> values;
    try {
        values = mainGroup(FileManager::defaultManager().contents(path, largestEntry));
    } catch (const FileError &) {
        return;
    }
    // Sandboxed applications run in their own units and are started by the sandbox's launcher.
    if (values["Type"] != "Application" || values["Hidden"] == "true" || values.contains("X-Flatpak") ||
        values.contains("X-SnapInstanceName")) {
        return;
    }
    const Start start = startOf(values["Exec"]);
    if (start.isWhole) {
        add(start.program, start.options, identifier);
    }
    const std::string &tried = values["TryExec"];
    if (!tried.empty() && tried != start.program) {
        add(tried, start.options, identifier);
    }
}

void DesktopEntries::add(const std::string &program, std::size_t options, const std::string &identifier) {
    std::vector<std::string> places;
    if (program.starts_with('/')) {
        places = {""};
    } else if (!program.empty()) {
        for (const std::string &directory : executables_) {
            places.push_back(directory + "/");
        }
    }
    for (const std::string &place : places) {
        const OwnedText path(realpath((place + program).c_str(), nullptr));
        if (path == nullptr) {
            continue;
        }
        const Rank rank(options, identifier);
        const auto [known, isNew] = byExecutable_.emplace(path.get(), rank);
        if (!isNew) {
            known->second = std::min(known->second, rank);
        }
        return;
    }
}

} // namespace velmar
