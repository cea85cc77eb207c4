#pragma once

#include <memory>
#include <vector>

#include <logger/Logger.h>

namespace velmar {

/// Puts other destinations in place of the logger's for the lifetime of an object: what any thread of the
/// process logs meanwhile goes to these alone, so that a tool or a test can look at it. At its end what was
/// logged to them is written, within the bound of Logger::flush, and the previous ones are back.
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
