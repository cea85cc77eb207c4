#pragma once

#include <Actions/ActionSetManager.h>
#include <Core/AppManager.h>

#include <memory>
#include <utility>

namespace velmar {

/// Handle on the handler of custom triggers: the given one, else the application's current ActionSetManager.
/// Declared as a field of an object that fires triggers: `Trigger _trigger;`.
class Trigger {
public:
    explicit Trigger(std::shared_ptr<CustomTriggerHandler> overrideValue = nullptr)
        : overrideValue_(std::move(overrideValue)) {}

    /// Returns the handler, nullptr if there is none yet. Any thread. Throws VelmarError::InternalError if no
    /// AppManager is shared and no handler was given.
    [[nodiscard]] std::shared_ptr<CustomTriggerHandler> wrappedValue() const {
        if (overrideValue_) {
            return overrideValue_;
        }
        return AppManager::shared()->actionSetManager();
    }

private:
    std::shared_ptr<CustomTriggerHandler> overrideValue_;
};

} // namespace velmar
