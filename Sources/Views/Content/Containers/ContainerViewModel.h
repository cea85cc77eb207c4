#pragma once

#include <Views/Content/MandatorySupervision.h>

namespace velmar {

/// The validity of a container, which supervises its components and is an element of its slide. Must be owned
/// by a shared_ptr. Main thread.
class ContainerViewModel final : public MandatorySupervisor,
                                 public MandatorySupervised,
                                 public std::enable_shared_from_this<ContainerViewModel> {
public:
    [[nodiscard]] const UUID &mandatoryIdentifier() const override { return mandatoryIdentifier_; }
    [[nodiscard]] bool isValid() const override { return isValid_; }
    void setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) override;
    void showWarnings() override { elements_.showWarnings(); }

    /// Updates the validity of the container and reports a change to its supervisor.
    void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) override;

    /// Removes an element and resets its supervisor, so that later reports don't add it again. Set the
    /// supervisor again if the element returns.
    void elementWasRemoved(MandatorySupervised &element);

private:
    void update();
    void report();

    UUID mandatoryIdentifier_;
    std::weak_ptr<MandatorySupervisor> mandatorySupervisor_;
    MandatoryElements elements_;
    bool isValid_ = true;
};

} // namespace velmar
