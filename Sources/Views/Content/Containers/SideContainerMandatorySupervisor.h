#pragma once

#include <Views/Content/Containers/ContainerViewModel.h>

#include <memory>
#include <utility>

namespace velmar {

/// Supervises the container beside the slides, which belongs to none of them: its validity is asked for when
/// the user quits, and holds nobody on a slide. Main thread.
class SideContainerMandatorySupervisor final : public MandatorySupervisor {
public:
    /// Of a container without a supervisor so far.
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
