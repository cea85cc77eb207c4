#pragma once

#include <string_view>

namespace velmar {

/// Runs what the configuration has registered for a trigger of its own.
class CustomTriggerHandler {
public:
    virtual ~CustomTriggerHandler() = default;

    /// Any thread. A name that nothing is registered for is logged.
    virtual void dispatchSetsFor(std::string_view customTrigger) = 0;
};

} // namespace velmar
