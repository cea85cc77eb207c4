#pragma once

#include <string>
#include <string_view>

#include <sys/types.h>

#include <Foundation/Descriptor.h>
#include <logger/FileDestination.h>

namespace velmar {

/// An open log file that follows the rules of FileDestination.
class LogFile {
public:
    /// Opens the file, creating it and missing folders. Throws FileError.
    explicit LogFile(const LogFileSettings &settings);

    /// Returns true if the path still refers to this file.
    [[nodiscard]] bool isCurrent() const;
    /// Appends the text, if possible in a single system call. Throws FileError.
    void append(std::string_view text);

private:
    std::string path_;
    bool syncAfterEachWrite_;
    Descriptor descriptor_;
    dev_t device_ = 0;
    ino_t number_ = 0;
};

} // namespace velmar
