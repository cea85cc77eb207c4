#pragma once

#include <memory>
#include <vector>

#include <logger/Logger.h>

namespace velmar {

/// Replaces the logger's destinations during the lifetime of an object, so that a tool or a test can inspect
/// the messages of all threads. The destructor flushes the destinations, within the default bound of
/// Logger::flush, and restores the previous ones.
class ScopedDestinations {
public:
    explicit ScopedDestinations(std::vector<std::shared_ptr<BaseDestination>> destinations = {});
    ~ScopedDestinations();
    ScopedDestinations(const ScopedDestinations &) = delete;
    ScopedDestinations &operator=(const ScopedDestinations &) = delete;

private:
    std::shared_ptr<const LogRoutes> previous_;
};

} // namespace velmar
