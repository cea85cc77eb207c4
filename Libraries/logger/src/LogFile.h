#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

#include <Foundation/Descriptor.h>
#include <logger/FileDestination.h>

namespace velmar {

/// An open log file, under the rules of FileDestination.
class LogFile {
public:
    /// Opens the file, creates it and the folders above it where they are missing. Throws FileError.
    explicit LogFile(const LogFileSettings &settings);

    /// Whether the path still leads to this file.
    [[nodiscard]] bool isCurrent() const;
    /// Appends the text with one call where the system takes it whole. Throws FileError.
    void append(std::string_view text);

private:
    std::string path_;
    bool syncAfterEachWrite_;
    Descriptor descriptor_;
    dev_t device_ = 0;
    ino_t number_ = 0;
};

} // namespace velmar
