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

/// The installed applications, by their executables. Read when first asked, and again when one of the
/// directories has changed since. One thread at a time.
class DesktopEntries {
public:
    /// `directories` hold the entries, `executables` are searched for programs that are given by name alone.
    DesktopEntries(std::vector<std::string> directories, std::vector<std::string> executables);

    /// The identifier of the entry that starts the executable, given without links, and nothing else: an
    /// interpreter isn't the application that it runs. The empty text if there is none. Of several it is the
    /// one with the fewest options, and of those the first of the alphabet.
    [[nodiscard]] std::string identifierFor(const std::string &executable);

private:
    using Rank = std::pair<std::size_t, std::string>; // The number of options and the identifier.

    [[nodiscard]] bool isCurrent() const;
    void read();
    void readDirectory(const std::string &path, const std::string &prefix, int depth);
    void readEntry(const std::string &path, const std::string &identifier);
    void add(const std::string &program, std::size_t options, const std::string &identifier);

    std::vector<std::string> directories_;
    std::vector<std::string> executables_;
    std::map<std::string, std::int64_t> changes_; // When each directory was changed last.
    std::set<std::string> seen_;                  // An earlier directory's entry hides a later one's.
    std::set<std::pair<dev_t, ino_t>> visited_;   // Links may lead to a directory again and again.
    std::map<std::string, Rank> byExecutable_;
};

} // namespace velmar
