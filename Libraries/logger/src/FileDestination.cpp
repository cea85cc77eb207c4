#include <logger/FileDestination.h>

#include <utility>

#include <Foundation/FileError.h>

#include "LogFile.h"

namespace velmar {

FileDestination::FileDestination(LogFileSettings file, DestinationSettings settings)
    : BaseDestination(std::move(settings)), file_(std::move(file)) {}

FileDestination::~FileDestination() = default;

void FileDestination::write(std::span<const LogRecord> records) {
    formatLines(records, file_.colored, [this](std::string_view lines) { append(lines); });
}

void FileDestination::append(std::string_view lines) {
    try {
        if (!opened_ || !opened_->isCurrent()) {
            opened_.reset();
            opened_ = std::make_unique<LogFile>(file_);
        }
        opened_->append(lines);
    } catch (const FileError &error) {
        reportLoss(error.errorDescription());
    }
}

} // namespace velmar
