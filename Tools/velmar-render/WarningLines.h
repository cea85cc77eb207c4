#pragma once

#include <Diagnostic.h>
#include <logger/BaseDestination.h>

#include <array>
#include <iostream>
#include <set>
#include <string>
#include <utility>

namespace velmar {

/// Prints the application's log records from warning upwards on standard error, each text once, in the format
/// of `velmarctl check`.
class WarningLines final : public BaseDestination {
public:
    explicit WarningLines(std::string file)
        : BaseDestination(DestinationSettings{.asynchronously = false, .minLevel = LogLevel::warning}),
          file_(std::move(file)) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            if (told_.insert(record.message).second) {
                writeText(std::cerr, std::array{Diagnostic{.file = file_,
                                                           .severity = Diagnostic::Severity::warning,
                                                           .keyPath = {},
                                                           .line = {},
                                                           .message = record.message,
                                                           .notes = {}}});
            }
        }
    }

private:
    std::string file_;
    std::set<std::string> told_;
};

} // namespace velmar
