#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include <sys/types.h>

#include <logger/BaseDestination.h>

namespace velmar {

class LogFile;

/// Owner of created files.
struct FileOwner {
    uid_t user;
    gid_t group;
};

/// The file of a FileDestination.
struct LogFileSettings {
    /// Absolute path; nothing is written to a relative one.
    std::filesystem::path logFileURL;
    /// A parent folder of the file that is never created: nothing is written while it is missing. Empty for
    /// none.
    std::filesystem::path requiredFolder = {};
    /// Owner of created files and folders, for a root process that writes on behalf of a user. Ignored in
    /// other processes.
    std::optional<FileOwner> owner = std::nullopt;
    bool syncAfterEachWrite = false;
    bool colored = false;
};

/// Appends lines to a file, which is never truncated or rotated. Creates the file and missing folders.
/// Reopens a file that was removed or replaced.
///
/// Only writes to a regular file with a single link that belongs to root, the process's user or the owner. If
/// root writes for an owner, it follows no link on the path, because the owner may have placed it. Lines that
/// cannot be written are dropped.
class FileDestination : public BaseDestination {
public:
    explicit FileDestination(LogFileSettings file, DestinationSettings settings = {});
    ~FileDestination() override;

    [[nodiscard]] const LogFileSettings &file() const { return file_; }

    void write(std::span<const LogRecord> records) override;

private:
    void append(std::string_view lines);

    const LogFileSettings file_;
    std::unique_ptr<LogFile> opened_;
};

} // namespace velmar
