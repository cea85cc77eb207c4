#pragma once

#include <Views/Content/Containers/ContainerViewModel.h>

#include <memory>
#include <utility>

namespace velmar {

/// Supervisor of the container beside the slides. Its validity is checked when the user quits and does not
/// affect navigation. Main thread.
class SideContainerMandatorySupervisor final : public MandatorySupervisor {
public:
    /// Creates the supervisor of a container, which must not have one yet.
    [[nodiscard]] static std::shared_ptr<SideContainerMandatorySupervisor>
    make(std::shared_ptr<ContainerViewModel> containerViewModel) {
        const std::shared_ptr<SideContainerMandatorySupervisor> supervisor(
            new SideContainerMandatorySupervisor(std::move(containerViewModel)));
        supervisor->containerViewModel_->setMandatorySupervisor(supervisor);
        return supervisor;
    }

    [[nodiscard]] bool isValid() const noexcept { return isValid_; }
    void showWarnings() const { containerViewModel_->showWarnings(); }

    void elementDidChange(const std::shared_ptr<MandatorySupervised> &container) override {
        isValid_ = container->isValid();
    }

private:
    explicit SideContainerMandatorySupervisor(std::shared_ptr<ContainerViewModel> containerViewModel)
        : containerViewModel_(std::move(containerViewModel)) {}

    std::shared_ptr<ContainerViewModel> containerViewModel_;
    bool isValid_ = true;
};

} // namespace velmar
