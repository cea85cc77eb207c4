#include <Settings/ConfigurationSlot.h>

#include <utility>

namespace velmar {

ConfigurationSlot::ConfigurationSlot(std::shared_ptr<const Configuration> configuration)
    : present_(configuration), atLaunch_(std::move(configuration)) {}

std::shared_ptr<const Configuration> ConfigurationSlot::present() const {
    const std::lock_guard lock(mutex_);
    return present_;
}

void ConfigurationSlot::replacePresent(std::shared_ptr<const Configuration> configuration) {
    // Swapped: the parameter destroys the former configuration after the lock is released.
    const std::lock_guard lock(mutex_);
    present_.swap(configuration);
}

} // namespace velmar
