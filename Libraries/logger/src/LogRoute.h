#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <logger/LogRecord.h>
#include <logger/SourceLocation.h>

#include "DeliveryQueue.h"

namespace velmar {

class BaseDestination;

/// Delivers messages to one destination, directly or through its queue. Thread-safe.
class LogRoute {
public:
    explicit LogRoute(std::shared_ptr<BaseDestination> destination);

    [[nodiscard]] LogLevel minLevel() const;
    [[nodiscard]] bool accepts(LogLevel level, const SourceLocation &where) const;
    [[nodiscard]] bool needsThreadName() const { return needsThreadName_; }

    /// Writes the record, or queues it if the destination is asynchronous.
    void send(LogRecord &&record);
    bool drain(std::chrono::steady_clock::time_point deadline);

private:
    const std::shared_ptr<BaseDestination> destination_;
    const bool needsThreadName_;
    std::optional<DeliveryQueue> queue_;
    // Serialises writes of a destination without a queue.
    std::mutex writing_;
};

/// An immutable list of destinations. The logger replaces the list to change it.
class LogRoutes {
public:
    std::vector<std::shared_ptr<LogRoute>> items;
};

} // namespace velmar
