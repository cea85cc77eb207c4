#include <Views/CustomViews/PushButton.h>

#include <Desktop/LiteralLabel.h>

#include <QKeyEvent>

namespace velmar {

PushButton::PushButton(QWidget *parent) : QPushButton(parent) {
    setAutoDefault(false);
}

void PushButton::setLabel(const QString &label) {
    label_ = label;
    setText(literalLabel(label));
    setAccessibleName(label);
    updateToolTip();
}

void PushButton::updateToolTip() {
    setToolTip(width() < sizeHint().width() ? label_ : QString());
}

void PushButton::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Auto-repeat of a held key must not press repeatedly.
        if (!event->isAutoRepeat() && takesKeys()) {
            click();
        }
        return;
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
        event->ignore();
        return;
    default:
        QPushButton::keyPressEvent(event);
    }
}

void PushButton::resizeEvent(QResizeEvent *event) {
    QPushButton::resizeEvent(event);
    updateToolTip();
}

} // namespace velmar
