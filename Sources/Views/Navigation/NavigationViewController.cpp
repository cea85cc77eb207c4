#include <Views/Navigation/NavigationViewController.h>

#include <Desktop/DesktopAppearance.h>
#include <Views/Appearance/Color.h>
#include <Views/Content/ContentView/ContentViewModel.h>
#include <Views/CustomViews/Colors.h>
#include <Views/CustomViews/Theme.h>
#include <Views/Navigation/NavigationButton.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QTimer>

#include <string>
#include <utility>

namespace velmar {

namespace {

constexpr int padding = 24; // Points.
constexpr int animationMilliseconds = 1000;

QString label(const std::optional<std::string> &configured, const QString &standard) {
    return configured ? QString::fromStdString(*configured) : standard;
}

} // namespace

NavigationViewController::NavigationViewController(const NavigationSection &section,
                                                   std::shared_ptr<const ContentViewModel> content,
                                                   const DesktopAppearance &appearance, QWidget *parent)
    : QWidget(parent),
      center_(content->center()),
      appearance_(appearance),
      section_(section),
      //% "Previous"
      previousLabel_(label(section._previousButtonText(), qtTrId("navigation.buttons.previous"))),
      //% "Next"
      nextLabel_(label(section._nextButtonText(), qtTrId("navigation.buttons.next"))),
      //% "Quit"
      quitLabel_(label(section._quitButtonText(), qtTrId("navigation.buttons.quit"))),
      previousButton_(new NavigationButton(false, this)),
      nextButton_(new NavigationButton(true, this)),
      viewModel_(*this, std::move(content)) {
    setFixedHeight(width);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::AlternateBase);
    previousButton_->setLabel(previousLabel_);
    apply(viewModel_.state(), 0);
    auto *layout = new QHBoxLayout(this);
    const int side = padding - Theme::focusRingRoom;
    layout->setContentsMargins(side, 0, side, 0);
    layout->addWidget(previousButton_);
    layout->addStretch(1);
    layout->addWidget(nextButton_);
    connect(nextButton_, &QAbstractButton::clicked, this, &NavigationViewController::nextPressed);
    connect(previousButton_, &QAbstractButton::clicked, this, &NavigationViewController::previousPressed);
    updateTextColors();
    setHidden(section._isHidden());
}

void NavigationViewController::pressNext() {
    if (!isHidden()) {
        nextButton_->click();
    }
}

void NavigationViewController::pressPrevious() {
    if (!isHidden()) {
        previousButton_->click();
    }
}

void NavigationViewController::nextPressed() {
    if (!nextButton_->isConcealed()) {
        navigate(NavigationNotifications::willNavigateToNextSlide,
                 viewModel_.state().nextButtonMoves() ? previousButton_ : nullptr);
    }
}

void NavigationViewController::previousPressed() {
    if (!previousButton_->isConcealed()) {
        navigate(NavigationNotifications::willNavigateToPreviousSlide,
                 viewModel_.state().isSlideValid ? nextButton_ : nullptr);
    }
}

void NavigationViewController::navigate(std::string_view notification, NavigationButton *revealed) {
    if (revealed != nullptr) {
        revealed->setConcealed(false);
    }
    viewModel_.clearHideFlags();
    center_.post(notification);
    const NavigationState state = viewModel_.state();
    if (state.slideHidesNextButton) {
        nextButton_->setConcealed(true);
    }
    if (state.slideHidesPreviousButton) {
        previousButton_->setConcealed(true);
    }
}

void NavigationViewController::reachedSlide(const SlideArrival &arrival) {
    const bool isFading = !arrival.completion.empty();
    const int duration = isFading ? animationDuration() : 0;
    apply(viewModel_.state(), duration);
    if (isFading) {
        QTimer::singleShot(duration, this,
                           [this, completion = arrival.completion] { center_.post(completion); });
    }
}

void NavigationViewController::apply(const NavigationState &state, int milliseconds) {
    nextButton_->setLabel(state.nextButtonQuits() ? quitLabel_ : nextLabel_);
    nextButton_->setConcealed(state.isNextButtonHidden(), milliseconds);
    // A sole slide leaves Previous as it is.
    if (state.position != SlidePosition::sole) {
        previousButton_->setConcealed(state.isPreviousButtonHidden(), milliseconds);
    }
}

int NavigationViewController::animationDuration() const {
    // The fade of an invisible bar would only delay the completion.
    return appearance_.isAnimated() && isVisible() ? animationMilliseconds : 0;
}

void NavigationViewController::updateTextColors() {
    const bool isDark = DesktopAppearance::isDark(palette());
    const auto color = [isDark](const std::optional<ColorItem> &item) {
        return item ? std::optional(qColor(Color::of(*item, isDark))) : std::nullopt;
    };
    previousButton_->setTextColor(color(section_._previousButtonTextColor()));
    nextButton_->setTextColor(color(section_._nextButtonTextColor()));
}

void NavigationViewController::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        updateTextColors();
    }
}

void NavigationViewController::paintEvent(QPaintEvent * /*event*/) {
    QPainter(this).fillRect(QRect(0, 0, QWidget::width(), 1), palette().color(QPalette::Mid));
}

} // namespace velmar
