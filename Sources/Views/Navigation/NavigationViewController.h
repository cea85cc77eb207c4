#pragma once

#include <Configuration/NavigationSection.h>
#include <Dispatch/MainQueue.h>
#include <Foundation/NotificationCenter.h>
#include <Views/Navigation/NavigationViewModel.h>

#include <QWidget>

namespace velmar {

class DesktopAppearance;
class NavigationButton;

/// The bar below the slides with the buttons that lead back and on. Main thread.
class NavigationViewController final : public QWidget, public NavigationViewModelDelegate {
    Q_OBJECT

public:
    /// The thickness of the bar, in points.
    static constexpr int width = 64;

    /// What must outlive the bar.
    struct Surroundings {
        MainQueue &mainQueue;
        NotificationCenter &center;
        const DesktopAppearance &appearance;
    };

    NavigationViewController(const NavigationSection &section, Surroundings surroundings, QWidget *parent);

    [[nodiscard]] NavigationButton &previousButton() const noexcept { return *previousButton_; }
    [[nodiscard]] NavigationButton &nextButton() const noexcept { return *nextButton_; }

    /// What a click on the button does; nothing while the bar or the button is hidden.
    void pressNext();
    void pressPrevious();

    void reachedFirstSlide() override;
    void reachedLastSlide() override;
    void reachedSoleSlide() override;
    void reevaluateButtons() override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void nextPressed();
    void previousPressed();
    void hideWhatTheSlideWantsHidden();
    void updateTextColors();
    /// Notes an arrival at a slide, and runs the function on the main queue unless by then there was another
    /// one or the bar is gone.
    void laterUnlessGoneOn(std::function<void()> function);
    /// The length of the bar's animations in milliseconds; 0 where the desktop wants none.
    [[nodiscard]] int animationDuration() const;
    void postAfterAnimation(std::string_view notification);

    Surroundings surroundings_;
    NavigationSection section_;
    QString previousLabel_;
    QString nextLabel_;
    QString quitLabel_;
    NavigationButton *previousButton_;
    NavigationButton *nextButton_;
    bool isSoleSlideReached_ = false;
    bool isLastSlideReached_ = false;
    unsigned arrival_ = 0;          // Counts them.
    NavigationViewModel viewModel_; // Last: it calls back.
};

} // namespace velmar
