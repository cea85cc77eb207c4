#pragma once

#include <string_view>

namespace velmar {

/// Runs the action sets registered for a custom trigger.
class CustomTriggerHandler {
public:
    virtual ~CustomTriggerHandler() = default;

    /// Dispatches the sets registered for the name. A name without sets is logged. Any thread.
    virtual void dispatchSetsFor(std::string_view customTrigger) = 0;
};

} // namespace velmar
