#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace velmar {

/// Finds installed applications by their executables. The entries are read on first use and again after a
/// change of a directory. Not thread-safe.
class DesktopEntries {
public:
    /// `directories` contain the entries. `executables` are searched for programs given by name.
    DesktopEntries(std::vector<std::string> directories, std::vector<std::string> executables);

    /// Returns the identifier of the entry that starts exactly this executable, or "" if there is none.
    /// Entries whose command has further arguments don't count: an interpreter is not the application that it
    /// runs. Prefers the entry with the fewest options, then the alphabetically first one. `executable` must
    /// be a path without links.
    [[nodiscard]] std::string identifierFor(const std::string &executable);

private:
    using Rank = std::pair<std::size_t, std::string>; // number of options, identifier

    [[nodiscard]] bool isCurrent() const;
    void read();
    void readDirectory(const std::string &path, const std::string &prefix, int depth);
    void readEntry(const std::string &path, const std::string &identifier);
    void add(const std::string &program, std::size_t options, const std::string &identifier);

    std::vector<std::string> directories_;
    std::vector<std::string> executables_;
    std::map<std::string, std::int64_t> changes_; // modification times of the directories
    std::set<std::string> seen_;                // identifiers; entries of earlier directories take precedence
    std::set<std::pair<dev_t, ino_t>> visited_; // directories, since links may form cycles
    std::map<std::string, Rank> byExecutable_;
};

} // namespace velmar
