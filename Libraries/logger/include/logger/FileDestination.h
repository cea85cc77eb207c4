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

/// Whom files belong to.
struct FileOwner {
    uid_t user;
    gid_t group;
};

/// The file of a FileDestination.
struct LogFileSettings {
    /// Absolute; nothing is written where it is not.
    std::filesystem::path logFileURL;
    /// A folder above the file that is never created: while it is missing, nothing is written. Empty for
    /// none.
    std::filesystem::path requiredFolder = {};
    /// For a process of root that writes for another user: what is created belongs to this owner. Ignored for
    /// other processes.
    std::optional<FileOwner> owner = std::nullopt;
    bool syncAfterEachWrite = false;
    bool colored = false;
};

/// Appends lines to a file, which is never truncated and never rotated. Missing folders and the file are
/// created; a file that was removed or replaced meanwhile is opened anew.
///
/// A file that is not a regular one with a single link, or that belongs to neither root, the process's user
/// nor the owner, is never written. Where root writes for an owner, no link on the way to the file is
/// followed, because the owner may have placed it. Lines that cannot be written are dropped.
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
