#pragma once

#include <Base/Shared.h>

#include <memory>
#include <mutex>

namespace velmar {

struct Configuration;

/// Holds the configurations of the process: the present one, which a reload replaces as a whole, and the one
/// of the launch. The owner of the decoded configuration makes and shares the slot. Any thread.
class ConfigurationSlot {
public:
    /// `configuration` becomes both the present one and that of the launch. It must not be null.
    explicit ConfigurationSlot(std::shared_ptr<const Configuration> configuration);

    /// The process's instance. Throws VelmarError::InternalError while there is none.
    [[nodiscard]] static std::shared_ptr<ConfigurationSlot> shared() {
        return Shared<ConfigurationSlot>::instance();
    }

    /// The present configuration, never null. It stays valid and unchanged while the caller holds it.
    [[nodiscard]] std::shared_ptr<const Configuration> present() const;

    /// The configuration of the launch, never null. It never changes.
    [[nodiscard]] const std::shared_ptr<const Configuration> &atLaunch() const noexcept { return atLaunch_; }

    /// Replaces the present configuration. `configuration` must not be null.
    void replacePresent(std::shared_ptr<const Configuration> configuration);

private:
    mutable std::mutex mutex_; // Guards present_.
    std::shared_ptr<const Configuration> present_;
    const std::shared_ptr<const Configuration> atLaunch_;
};

} // namespace velmar
