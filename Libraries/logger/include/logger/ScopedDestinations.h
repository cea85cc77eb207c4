#pragma once

#include <memory>
#include <vector>

#include <logger/Logger.h>

namespace velmar {

/// Puts other destinations in place of the logger's for the lifetime of an object, for tests. At its end what
/// was logged to them is written, within the bound of Logger::flush, and the previous ones are back.
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
