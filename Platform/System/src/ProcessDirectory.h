#pragma once

#include <Foundation/Descriptor.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Information about a process.
struct ProcessRecord {
    std::int32_t parent = 0;
    /// In clock ticks since boot; distinguishes processes that reuse a number.
    std::uint64_t startTime = 0;
    std::uint32_t user = 0;
    bool isKernelThread = false;
    std::string name;       ///< Command name, at most 15 bytes.
    std::string executable; ///< Absolute path without links; empty if it is unreadable or missing.
};

/// Reads /proc or a directory with the same layout. Not thread-safe.
class ProcessDirectory {
public:
    struct Entry {
        std::int32_t process = 0;
        /// An unchanged inode means the same process. A changed one has no meaning.
        std::uint64_t inode = 0;
    };

    /// Opens the directory. list() returns nothing if that fails.
    explicit ProcessDirectory(const std::string &path);

    /// Returns the processes sorted by number.
    [[nodiscard]] std::vector<Entry> list();

    /// Returns std::nullopt if the process has ended.
    [[nodiscard]] std::optional<ProcessRecord> record(std::int32_t process) const;

    /// Returns at most the first `limit` bytes of a file of the process; empty if it can't be read.
    [[nodiscard]] std::string contents(std::int32_t process, const char *file, std::size_t limit) const;

    /// Returns a path, ending in "/", that resolves to the process's working directory.
    [[nodiscard]] std::string workingDirectory(std::int32_t process) const;

private:
    std::string path_;
    Descriptor descriptor_;
    std::vector<char> buffer_;
    std::size_t lastCount_ = 0;
};

} // namespace velmar
