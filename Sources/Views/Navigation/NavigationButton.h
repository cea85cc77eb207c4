#pragma once

#include <QPushButton>
#include <QVariantAnimation>

#include <optional>

namespace velmar {

/// A button of the navigation bar. It keeps its place while it is hidden, and can come and go gradually. The
/// Return key presses it; the arrow keys are left to the bar.
class NavigationButton final : public QPushButton {
    Q_OBJECT

public:
    /// `isPrimary`: the one that leads on.
    NavigationButton(bool isPrimary, QWidget *parent);

    /// Shown character for character, and in full as the tooltip where the button is too narrow for it.
    void setLabel(const QString &label);

    /// The colour of the label; none for that of the theme. A primary button whose accent would make the
    /// colour hard to read is drawn as an ordinary one.
    void setTextColor(const std::optional<QColor> &color);

    /// Ends what is under way. A button that goes takes no more clicks of the mouse; whoever acts on
    /// `clicked` must look at `isConcealed()`, for keys and assistive programs press it still.
    void setConcealed(bool isConcealed);
    void setConcealed(bool isConcealed, int milliseconds);
    [[nodiscard]] bool isConcealed() const noexcept { return isConcealed_; }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString label_;
    bool isPrimary_;
    bool isConcealed_ = false;
    QVariantAnimation opacity_;
};

} // namespace velmar
