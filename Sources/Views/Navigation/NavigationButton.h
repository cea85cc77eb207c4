#pragma once

#include <Views/CustomViews/PushButton.h>

#include <QVariantAnimation>

#include <optional>

namespace velmar {

/// Button of the navigation bar. It keeps its place while it is hidden, and can fade in and out.
class NavigationButton final : public PushButton {
    Q_OBJECT

public:
    /// `isPrimary` is true for the next button.
    NavigationButton(bool isPrimary, QWidget *parent);

    /// Sets the colour of the label; nullopt selects the theme's. A primary button is drawn as an ordinary
    /// one if the colour is hard to read on the accent.
    void setTextColor(const std::optional<QColor> &color);

    /// Hides or shows the button and ends a running fade. A concealed button takes no clicks of the mouse,
    /// but keys and assistive programs press it until the fade ends: handlers of `clicked` must check
    /// `isConcealed()`.
    void setConcealed(bool isConcealed);
    /// The same with a fade of this duration; 0 for none.
    void setConcealed(bool isConcealed, int milliseconds);
    [[nodiscard]] bool isConcealed() const noexcept { return isConcealed_; }

protected:
    [[nodiscard]] bool takesKeys() const override { return !isConcealed_; }
    void paintEvent(QPaintEvent *event) override;

private:
    bool isPrimary_;
    bool isConcealed_ = false;
    QVariantAnimation opacity_{this};
};

} // namespace velmar
