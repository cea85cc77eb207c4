#pragma once

#include <Views/Content/MandatorySupervision.h>

namespace velmar {

/// The validity of a container: it supervises its components and is itself an element of its slide. Made as a
/// shared_ptr. Main thread.
class ContainerViewModel final : public MandatorySupervisor,
                                 public MandatorySupervised,
                                 public std::enable_shared_from_this<ContainerViewModel> {
public:
    [[nodiscard]] const UUID &mandatoryIdentifier() const override { return mandatoryIdentifier_; }
    [[nodiscard]] bool isValid() const override { return isValid_; }
    void setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) override;
    void showWarnings() override { elements_.showWarnings(); }

    /// Reports itself to its own supervisor when its validity changes by that.
    void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) override;

    /// An element that has left the container no longer counts. It is filed again when it comes back, by its
    /// own report.
    void elementWasRemoved(const UUID &identifier);

private:
    void update();
    void report();

    UUID mandatoryIdentifier_;
    std::weak_ptr<MandatorySupervisor> mandatorySupervisor_;
    MandatoryElements elements_;
    bool isValid_ = true;
};

} // namespace velmar
