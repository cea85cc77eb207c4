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

    /// An element that leaves the container no longer counts and loses its supervisor, so that nothing it
    /// reports later files it again. One that comes back is given its supervisor anew.
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
