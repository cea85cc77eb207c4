#include <Views/CustomViews/ColumnScrollArea.h>

#include <Views/CustomViews/KeyboardFocus.h>

#include <QKeyEvent>
#include <QScrollBar>

namespace velmar {

namespace {

QAbstractSlider::SliderAction scrollAction(int key) {
    switch (key) {
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return QAbstractSlider::SliderNoAction;
    }
}

} // namespace

ColumnScrollArea::ColumnScrollArea(QWidget *column, QWidget *parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(column);
    column->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::NoFocus);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int /*minimum*/, int maximum) {
        if (maximum == 0 && window()->focusWidget() == this && !focusNextPrevChild(true)) {
            giveFocusToSurroundings(*this);
        }
        setFocusPolicy(maximum > 0 ? Qt::TabFocus : Qt::NoFocus);
    });
}

bool ColumnScrollArea::scroll(int key) {
    const QAbstractSlider::SliderAction action = scrollAction(key);
    if (action == QAbstractSlider::SliderNoAction || verticalScrollBar()->maximum() == 0) {
        return false;
    }
    verticalScrollBar()->triggerAction(action);
    return true;
}

void ColumnScrollArea::keyPressEvent(QKeyEvent *event) {
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    event->setAccepted(isPlain && scroll(event->key()));
}

void ColumnScrollArea::focusInEvent(QFocusEvent *event) {
    QScrollArea::focusInEvent(event);
    parentWidget()->update();
}

void ColumnScrollArea::focusOutEvent(QFocusEvent *event) {
    QScrollArea::focusOutEvent(event);
    parentWidget()->update();
}

} // namespace velmar
