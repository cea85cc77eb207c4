#pragma once

#include <Foundation/Descriptor.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// What the system shows of a process.
struct ProcessRecord {
    std::int32_t parent = 0;
    std::uint64_t startTime = 0; ///< In ticks since the machine started; tells it from others of its number.
    std::uint32_t user = 0;
    bool isKernelThread = false;
    std::string name;       ///< What it calls itself, at most 15 bytes.
    std::string executable; ///< Absolute, without links; empty if it may not be known or there is none.
};

/// The directory of the processes, /proc, or one of the same shape. One thread at a time.
class ProcessDirectory {
public:
    struct Entry {
        std::int32_t process = 0;
        /// As long as it is the same, so is the process; another one says nothing.
        std::uint64_t inode = 0;
    };

    /// Lists nothing if it cannot be opened.
    explicit ProcessDirectory(const std::string &path);

    /// In the order of the numbers.
    [[nodiscard]] std::vector<Entry> list();

    /// None if there is no such process any more.
    [[nodiscard]] std::optional<ProcessRecord> record(std::int32_t process) const;

    /// The beginning of one of the process's files; empty if it can't be read.
    [[nodiscard]] std::string contents(std::int32_t process, const char *file, std::size_t limit) const;

    /// The path in this directory for what lies below the process's working directory.
    [[nodiscard]] std::string workingDirectory(std::int32_t process) const;

private:
    std::string path_;
    Descriptor descriptor_;
    std::vector<char> buffer_;
    std::size_t lastCount_ = 0;
};

} // namespace velmar
