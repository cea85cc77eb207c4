#pragma once

#include <QPushButton>

namespace velmar {

/// A button with a configured label. Return and Space press it; arrow keys are passed to its parent.
class PushButton : public QPushButton {
    Q_OBJECT

public:
    explicit PushButton(QWidget *parent);

    /// Sets the label, which is shown literally. A label too wide for the button is elided and also shown as
    /// the tooltip.
    void setLabel(const QString &label);
    [[nodiscard]] const QString &label() const noexcept { return label_; }

protected:
    /// Returns false while keys must not press the button.
    [[nodiscard]] virtual bool takesKeys() const { return true; }

    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void updateToolTip();

    QString label_;
};

} // namespace velmar
