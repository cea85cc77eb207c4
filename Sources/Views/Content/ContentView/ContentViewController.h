#pragma once

#include <Views/Content/ContentView/ContentViewModel.h>

#include <QVariantAnimation>
#include <QWidget>

#include <map>
#include <memory>

namespace velmar {

class DesktopAppearance;
class SlideViewController;
struct Services;

/// Shows the current slide and the transitions between slides. Slides are created on first use, so that their
/// number does not affect the start-up time. Main thread.
class ContentViewController final : public QWidget, public ContentViewControllerProtocol {
    Q_OBJECT

public:
    /// `services` and `appearance` must outlive the controller.
    ContentViewController(std::shared_ptr<ContentViewModel> viewModel, const Services &services,
                          const DesktopAppearance &appearance, QWidget *parent);
    ~ContentViewController() override;

    /// Creates the current slide from the present configuration and shows it without a transition.
    void rebuild();

    void transition(int from, int to) override;
    [[nodiscard]] bool isTransitionUnderWay() const override {
        return animation_.state() == QAbstractAnimation::Running;
    }
    [[nodiscard]] std::shared_ptr<SlideViewModel> currentSlideViewModel() const override;
    [[nodiscard]] SlideViewController *currentSlide() const;
    [[nodiscard]] int currentSlideIndex() const noexcept { return currentSlideIndex_; }

signals:
    /// Emitted when a transition begins. The slide that it leads to exists.
    void willLeave(const SlideViewController &slide);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    /// Creates the slide on its first use. nullptr if there is no such slide.
    SlideViewController *slide(int index);
    /// Returns nullptr if the slide has not been created.
    [[nodiscard]] SlideViewController *madeSlide(int index) const;
    void place(double progress);
    void finishTransition();

    std::shared_ptr<ContentViewModel> viewModel_;
    const Services &services_;
    const DesktopAppearance &appearance_;
    std::map<int, SlideViewController *> slides_;
    int currentSlideIndex_ = 0;
    int previousSlideIndex_ = 0; // Valid during a transition.
    QVariantAnimation animation_{this};
};

} // namespace velmar
