#pragma once

#include <Configuration/NavigationSection.h>
#include <Views/Navigation/NavigationViewModel.h>

#include <QWidget>

#include <memory>
#include <string_view>

namespace velmar {

class DesktopAppearance;
class NavigationButton;

/// Bar below the slides with the buttons Previous and Next. Main thread.
class NavigationViewController final : public QWidget, public NavigationViewModelDelegate {
    Q_OBJECT

public:
    /// Thickness of the bar, in points.
    static constexpr int width = 64;

    /// The appearance must outlive the bar.
    NavigationViewController(const NavigationSection &section,
                             std::shared_ptr<const ContentViewModel> content,
                             const DesktopAppearance &appearance, QWidget *parent);

    [[nodiscard]] NavigationButton &previousButton() const noexcept { return *previousButton_; }
    [[nodiscard]] NavigationButton &nextButton() const noexcept { return *nextButton_; }

    /// Does what a click on the button does. Nothing happens while the bar or the button is hidden.
    void pressNext();
    void pressPrevious();

    void reachedSlide(const SlideArrival &arrival) override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void nextPressed();
    void previousPressed();
    /// Posts a press. The button `revealed`, unless nullptr, is shown before the post, and the buttons that
    /// the slide hides are hidden after it, both without an animation.
    void navigate(std::string_view notification, NavigationButton *revealed);
    void apply(const NavigationState &state, int milliseconds);
    void updateTextColors();
    /// Duration of the fades in milliseconds. 0 if the desktop disables animations.
    [[nodiscard]] int animationDuration() const;

    NotificationCenter &center_;
    const DesktopAppearance &appearance_;
    NavigationSection section_;
    QString previousLabel_;
    QString nextLabel_;
    QString quitLabel_;
    NavigationButton *previousButton_;
    NavigationButton *nextButton_;
    NavigationViewModel viewModel_; // Last: it calls back.
};

} // namespace velmar
