#pragma once

#include <QPushButton>

namespace velmar {

/// A button with a label of an administrator. The Return key presses it, as Space does; the arrow keys are
/// left to what is around it.
class PushButton : public QPushButton {
    Q_OBJECT

public:
    explicit PushButton(QWidget *parent);

    /// Shown character for character, cut where the button is too narrow for it and then in full as the
    /// tooltip.
    void setLabel(const QString &label);
    [[nodiscard]] const QString &label() const noexcept { return label_; }

protected:
    /// False while keys don't press it.
    [[nodiscard]] virtual bool takesKeys() const { return true; }

    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString label_;
};

} // namespace velmar
