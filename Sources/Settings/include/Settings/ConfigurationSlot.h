#pragma once

#include <Base/Shared.h>

#include <memory>
#include <mutex>

namespace velmar {

struct Configuration;

/// Holds the present configuration, which a reload replaces as a whole, and the launch configuration. The
/// owner of the decoded configuration creates and shares the slot. Thread-safe.
class ConfigurationSlot {
public:
    /// Sets both the present and the launch configuration. `configuration` must not be null.
    explicit ConfigurationSlot(std::shared_ptr<const Configuration> configuration);

    /// Returns the shared instance. Throws VelmarError::InternalError if there is none.
    [[nodiscard]] static std::shared_ptr<ConfigurationSlot> shared() {
        return Shared<ConfigurationSlot>::instance();
    }

    /// Returns the present configuration, never null. It stays valid and unchanged while the caller holds it.
    [[nodiscard]] std::shared_ptr<const Configuration> present() const;

    /// Returns the launch configuration, never null and immutable.
    [[nodiscard]] const std::shared_ptr<const Configuration> &atLaunch() const noexcept { return atLaunch_; }

    /// Replaces the present configuration. `configuration` must not be null.
    void replacePresent(std::shared_ptr<const Configuration> configuration);

private:
    mutable std::mutex mutex_; // Guards present_.
    std::shared_ptr<const Configuration> present_;
    const std::shared_ptr<const Configuration> atLaunch_;
};

} // namespace velmar
