#include <Views/Content/Slides/SlideViewModel.h>

#include <Base/NavigationNotifications.h>

#include <logger/Logger.h>

namespace velmar {

void SlideViewModel::elementDidChange(const std::shared_ptr<MandatorySupervised> &element) {
    mandatoryElements_.file(element);
    if (shouldNotifyForValidState_) {
        notifyForValidState(true);
    }
}

void SlideViewModel::willAppear() {
    shouldNotifyForValidState_ = true;
    notifyForValidState(false);
}

void SlideViewModel::notifyForValidState(bool logging) const {
    const bool isValid = mandatoryElements_.areValid();
    center_.post(isValid ? NavigationNotifications::allMandatoryElementsInSlideAreValid
                         : NavigationNotifications::slideHasInvalidMandatoryElements);
    if (logging) {
        Logger::debug(isValid ? "All the mandatory elements in the slide are valid"
                              : "The slide contains invalid (or empty) mandatory elements");
    }
}

} // namespace velmar
