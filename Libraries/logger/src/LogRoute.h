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

/// The way of messages to one destination of the list: through its queue or at once. Any thread.
class LogRoute {
public:
    explicit LogRoute(std::shared_ptr<BaseDestination> destination);

    [[nodiscard]] LogLevel minLevel() const;
    [[nodiscard]] bool accepts(LogLevel level, const SourceLocation &where) const;
    [[nodiscard]] bool needsThreadName() const { return needsThreadName_; }

    /// Nothing is written on the caller's thread where the destination is asynchronous.
    void send(LogRecord &&record);
    bool drain(std::chrono::steady_clock::time_point deadline);

private:
    const std::shared_ptr<BaseDestination> destination_;
    const bool needsThreadName_;
    std::optional<DeliveryQueue> queue_;
    // Serialises the writes of a destination without a queue.
    std::mutex writing_;
};

/// An immutable list of destinations; the logger changes its list by putting another one in its place.
class LogRoutes {
public:
    std::vector<std::shared_ptr<LogRoute>> items;
};

} // namespace velmar
