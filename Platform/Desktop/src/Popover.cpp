#include <Desktop/Popover.h>

#include <QApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

#include <algorithm>

namespace velmar {

namespace {

constexpr int gap = 4;    // points between the popover and its place
constexpr int margin = 8; // points between the popover and the edges of the screen

// Milliseconds after hiding during which a click on the place is ignored: it may be the click that made the
// panel active and thereby closed the popover.
constexpr int sameClick = 250;

// Milliseconds for the keyboard to return from an alert, even on a busy machine.
constexpr int keyboardsReturn = 1000;

// Milliseconds after which a popover is shown even if the loss of its keyboard has not been reported.
constexpr int keyboardsLoss = 1000;

constexpr Window::Style style{.hasTitleBar = false,
                              .isClosable = false,
                              .isResizable = false,
                              .isMovable = false,
                              .rank = Window::Style::Rank::popover};

} // namespace

Popover::Popover(MainMenu &menu) : window_(style, menu) {
    window_.setAttribute(Qt::WA_QuitOnClose, false);
    window_.setAccessibleName(QCoreApplication::applicationName());
    window_.installEventFilter(this);
    connect(qApp, &QGuiApplication::applicationStateChanged, this, &Popover::hideIfTurnedAway);
    showLater_.setSingleShot(true);
    connect(&showLater_, &QTimer::timeout, this, &Popover::show);
    connect(qApp, &QGuiApplication::focusWindowChanged, &showLater_, [this] {
        if (showLater_.isActive()) {
            showLater_.start(0);
        }
    });
}

QPoint Popover::originOf(const QRect &place, QSize size, const QRect &area) {
    const bool isBelow = place.center().y() < area.center().y();
    const int x = place.center().x() - size.width() / 2;
    const int y = isBelow ? place.bottom() + 1 + gap : place.top() - gap - size.height();
    const auto within = [](int value, int first, int room) {
        return std::clamp(value, first, std::max(first, first + room));
    };
    return {within(x, area.left(), area.width() - size.width()),
            within(y, area.top(), area.height() - size.height())};
}

void Popover::toggle(const ScreenFrame &place, QSize size, Behavior behavior) {
    behavior_ = behavior;
    place_ = place;
    size_ = size;
    if (window_.isVisible()) {
        window_.hide();
    } else if (showLater_.isActive()) {
        showLater_.stop();
    } else if (QGuiApplication::focusWindow() == window_.windowHandle()) {
        // The toolkit reports the loss of the keyboard late. If the keyboard came back before that, the
        // toolkit would report neither, and treat the window as an inactive one, without its shortcuts.
        showLater_.start(keyboardsLoss);
    } else if (!sinceSentAway_.isValid() || sinceSentAway_.elapsed() > sameClick) {
        show();
    }
}

void Popover::show() {
    const QRect item(place_.x, place_.y, place_.width, place_.height);
    const QScreen *screen = QGuiApplication::screenAt(item.center());
    if (screen == nullptr) {
        screen = QGuiApplication::primaryScreen();
    }
    if (screen == nullptr) {
        return;
    }
    const QRect area = screen->availableGeometry().adjusted(margin, 0, -margin, 0);
    const QSize shown = size_.boundedTo(area.size());
    window_.setSizes(shown, shown, shown);
    window_.move(originOf(item, shown, area));
    hadTheKeyboard_ = false;
    window_.show();
    window_.raise();
    window_.activateWindow();
    window_.setFocus();
}

bool Popover::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::WindowActivate) {
        hadTheKeyboard_ = true;
    } else if (event->type() == QEvent::WindowUnblocked) {
        // An alert has closed: the application is inactive until the keyboard has returned.
        QTimer::singleShot(keyboardsReturn, this, &Popover::hideIfTurnedAway);
    }
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (event->type() == QEvent::Close || isEscape) {
        window_.hide();
        event->setAccepted(isEscape);
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void Popover::hideIfTurnedAway() {
    // The state may predate the popover. Don't hide while an alert is open on top of it.
    if (QGuiApplication::applicationState() != Qt::ApplicationActive && hadTheKeyboard_ &&
        behavior_ == Behavior::transient && window_.isVisible() &&
        QApplication::activeModalWidget() == nullptr) {
        window_.hide();
        sinceSentAway_.start();
    }
}

} // namespace velmar
