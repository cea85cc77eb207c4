#include <Views/Content/Containers/ContainerViewModel.h>

#include <utility>

namespace velmar {

void ContainerViewModel::setMandatorySupervisor(std::weak_ptr<MandatorySupervisor> supervisor) {
    mandatorySupervisor_ = std::move(supervisor);
    isValid_ = elements_.areValid();
    report();
}

void ContainerViewModel::elementDidChange(const std::shared_ptr<MandatorySupervised> &element) {
    elements_.file(element);
    update();
}

void ContainerViewModel::elementWasRemoved(MandatorySupervised &element) {
    element.setMandatorySupervisor({});
    elements_.remove(element.mandatoryIdentifier());
    update();
}

void ContainerViewModel::update() {
    const bool isValid = elements_.areValid();
    if (isValid != std::exchange(isValid_, isValid)) {
        report();
    }
}

void ContainerViewModel::report() {
    if (const auto supervisor = mandatorySupervisor_.lock()) {
        supervisor->elementDidChange(shared_from_this());
    }
}

} // namespace velmar
