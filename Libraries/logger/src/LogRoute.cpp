#include "LogRoute.h"

#include <span>
#include <utility>

#include <logger/BaseDestination.h>

namespace velmar {

LogRoute::LogRoute(std::shared_ptr<BaseDestination> destination)
    : destination_(std::move(destination)), needsThreadName_(destination_->printsThread()) {
    if (destination_->settings().asynchronously) {
        queue_.emplace(destination_);
    }
}

LogLevel LogRoute::minLevel() const {
    return destination_->settings().minLevel;
}

bool LogRoute::accepts(LogLevel level, const SourceLocation &where) const {
    return destination_->shouldBeLogged(level, where);
}

void LogRoute::send(LogRecord &&record) {
    if (queue_) {
        queue_->push(std::move(record));
        return;
    }
    const std::lock_guard lock(writing_);
    destination_->write(std::span(&record, 1));
}

bool LogRoute::drain(std::chrono::steady_clock::time_point deadline) {
    return !queue_ || queue_->drain(deadline);
}

} // namespace velmar
