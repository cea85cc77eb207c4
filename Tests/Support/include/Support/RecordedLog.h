#pragma once

#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

#include <fmt/format.h>

#include <memory>
#include <mutex>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velmar {

/// Records the log of the process while it exists; replaces all other destinations. Thread-safe.
class RecordedLog {
public:
    /// Returns the lines so far, each as "LEVEL: MESSAGE CONTEXT".
    [[nodiscard]] std::vector<std::string> lines() const {
        const std::lock_guard lock(destination_->mutex);
        return destination_->lines;
    }

    /// Returns the lines since the last call.
    [[nodiscard]] std::vector<std::string> takeLines() {
        const std::lock_guard lock(destination_->mutex);
        return std::exchange(destination_->lines, {});
    }

private:
    struct Destination final : BaseDestination {
        Destination() : BaseDestination(synchronous()) {}

        static DestinationSettings synchronous() {
            DestinationSettings settings;
            settings.asynchronously = false;
            return settings;
        }

        void write(std::span<const LogRecord> records) override {
            const std::lock_guard lock(mutex);
            for (const LogRecord &record : records) {
                lines.push_back(fmt::format("{}: {}{}{}", nameOf(record.level), record.message,
                                            record.context.empty() ? "" : " ", record.context));
            }
        }

        std::mutex mutex;
        std::vector<std::string> lines;
    };

    std::shared_ptr<Destination> destination_ = std::make_shared<Destination>();
    ScopedDestinations scope_{{destination_}};
};

} // namespace velmar
