#include <Views/Navigation/NavigationButton.h>

#include <Desktop/LiteralLabel.h>
#include <Views/CustomViews/Colors.h>

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace velmar {

namespace {
constexpr double readableContrast = 3;
}

NavigationButton::NavigationButton(bool isPrimary, QWidget *parent)
    : QPushButton(parent), isPrimary_(isPrimary) {
    setDefault(isPrimary);
    setAutoDefault(false);
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    opacity_.setStartValue(1.0);
    opacity_.setEndValue(1.0);
    connect(&opacity_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&opacity_, &QVariantAnimation::finished, this, [this] { setVisible(!isConcealed_); });
}

void NavigationButton::setLabel(const QString &label) {
    label_ = label;
    setText(literalLabel(label));
    setAccessibleName(label);
    updateToolTip();
}

void NavigationButton::updateToolTip() {
    setToolTip(width() < sizeHint().width() ? label_ : QString());
}

void NavigationButton::setTextColor(const std::optional<QColor> &color) {
    setPalette(QPalette());
    QPalette own = palette();
    if (color) {
        own.setColor(QPalette::ButtonText, *color);
        own.setColor(QPalette::HighlightedText, *color);
        setPalette(own);
    }
    setDefault(isPrimary_ &&
               (!color || contrast(*color, own.color(QPalette::Highlight)) >= readableContrast));
}

void NavigationButton::setConcealed(bool isConcealed) {
    isConcealed_ = isConcealed;
    setAttribute(Qt::WA_TransparentForMouseEvents, isConcealed);
    opacity_.stop();
    opacity_.setStartValue(1.0);
    opacity_.setEndValue(1.0);
    opacity_.setCurrentTime(0);
    setVisible(!isConcealed);
}

void NavigationButton::setConcealed(bool isConcealed, int milliseconds) {
    if (isConcealed == isConcealed_) {
        return;
    }
    if (milliseconds == 0) {
        setConcealed(isConcealed);
        return;
    }
    isConcealed_ = isConcealed;
    setAttribute(Qt::WA_TransparentForMouseEvents, isConcealed);
    const bool isUnderWay = opacity_.state() == QAbstractAnimation::Running;
    const double present = isUnderWay ? opacity_.currentValue().toDouble() : isConcealed ? 1.0 : 0.0;
    opacity_.stop();
    opacity_.setStartValue(present);
    opacity_.setEndValue(isConcealed ? 0.0 : 1.0);
    opacity_.setDuration(milliseconds);
    opacity_.start();
    show();
}

void NavigationButton::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // A key held down doesn't run through all the slides.
        if (!event->isAutoRepeat() && !isConcealed_) {
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

void NavigationButton::paintEvent(QPaintEvent * /*event*/) {
    QStylePainter painter(this);
    painter.setOpacity(opacity_.currentValue().toDouble());
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);
}

void NavigationButton::resizeEvent(QResizeEvent *event) {
    QPushButton::resizeEvent(event);
    updateToolTip();
}

} // namespace velmar
