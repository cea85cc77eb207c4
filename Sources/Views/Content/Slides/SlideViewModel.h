#pragma once

#include <Foundation/NotificationCenter.h>
#include <Views/Content/MandatorySupervision.h>

namespace velmar {

/// The validity of a slide, which is valid while all its mandatory elements are. Posts changes to the
/// navigation only while the slide is shown. Main thread.
class SlideViewModel final : public MandatorySupervisor {
public:
    explicit SlideViewModel(NotificationCenter &center = NotificationCenter::defaultCenter())
        : center_(center) {}

    void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) override;

    /// Called before the slide is shown. Begins to post its validity.
    void willAppear();
    void willDisappear() { shouldNotifyForValidState_ = false; }

    /// Posts the validity of the slide.
    void notifyForValidState(bool logging) const;

    void showWarnings() const { mandatoryElements_.showWarnings(); }

private:
    NotificationCenter &center_;
    MandatoryElements mandatoryElements_;
    bool shouldNotifyForValidState_ = false;
};

} // namespace velmar
