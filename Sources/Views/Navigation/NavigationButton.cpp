#include <Views/Navigation/NavigationButton.h>

#include <Views/CustomViews/Colors.h>

#include <QStyleOptionButton>
#include <QStylePainter>

namespace velmar {

namespace {
constexpr double readableContrast = 3;
}

NavigationButton::NavigationButton(bool isPrimary, QWidget *parent)
    : PushButton(parent), isPrimary_(isPrimary) {
    setDefault(isPrimary);
    QSizePolicy policy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    policy.setRetainSizeWhenHidden(true);
    setSizePolicy(policy);
    opacity_.setStartValue(1.0);
    opacity_.setEndValue(1.0);
    connect(&opacity_, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&opacity_, &QVariantAnimation::finished, this, [this] { setVisible(!isConcealed_); });
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
    if (milliseconds == 0) {
        setConcealed(isConcealed);
        return;
    }
    if (isConcealed == isConcealed_) {
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

void NavigationButton::paintEvent(QPaintEvent * /*event*/) {
    QStylePainter painter(this);
    painter.setOpacity(opacity_.currentValue().toDouble());
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);
}

} // namespace velmar
