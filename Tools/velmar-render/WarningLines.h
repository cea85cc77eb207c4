#pragma once

#include <logger/BaseDestination.h>

#include <fmt/core.h>

#include <cstdio>
#include <set>
#include <string>
#include <utility>

namespace velmar {

/// Prints what the application would log as a warning or worse on standard error, each text once.
class WarningLines final : public BaseDestination {
public:
    explicit WarningLines(std::string file) : BaseDestination(settings()), file_(std::move(file)) {}

    void write(std::span<const LogRecord> records) override {
        for (const LogRecord &record : records) {
            if (told_.insert(record.message).second) {
                fmt::print(stderr, "{}: warning: {}\n", file_, record.message);
            }
        }
    }

private:
    static DestinationSettings settings() {
        DestinationSettings settings;
        settings.asynchronously = false;
        settings.minLevel = LogLevel::warning;
        return settings;
    }

    std::string file_;
    std::set<std::string> told_;
};

} // namespace velmar
