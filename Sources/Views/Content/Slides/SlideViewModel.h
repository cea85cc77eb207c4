#pragma once

#include <Foundation/NotificationCenter.h>
#include <Views/Content/MandatorySupervision.h>

namespace velmar {

/// The validity of one slide: it is valid while all its mandatory elements are. It tells the navigation only
/// while the slide is on show. Main thread.
class SlideViewModel final : public MandatorySupervisor {
public:
    explicit SlideViewModel(NotificationCenter &center = NotificationCenter::defaultCenter())
        : center_(center) {}

    void elementDidChange(const std::shared_ptr<MandatorySupervised> &element) override;

    /// The slide comes on show, and its validity is the current one from now on.
    void willAppear();
    void willDisappear() { shouldNotifyForValidState_ = false; }

    /// Tells the navigation whether the slide is valid.
    void notifyForValidState(bool logging) const;

    void showWarnings() const { mandatoryElements_.showWarnings(); }

private:
    NotificationCenter &center_;
    MandatoryElements mandatoryElements_;
    bool shouldNotifyForValidState_ = false;
};

} // namespace velmar
