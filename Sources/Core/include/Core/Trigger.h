#pragma once

#include <Actions/ActionSetManager.h>
#include <Core/AppManager.h>

#include <memory>
#include <utility>

namespace velmar {

/// Who fires custom triggers: what the holder was given, else the application's ActionSetManager of the
/// moment. An owner declares with it that it fires some: `Trigger _trigger;`.
class Trigger {
public:
    explicit Trigger(std::shared_ptr<CustomTriggerHandler> overrideValue = nullptr)
        : overrideValue_(std::move(overrideValue)) {}

    /// Null while there is none. Any thread.
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
