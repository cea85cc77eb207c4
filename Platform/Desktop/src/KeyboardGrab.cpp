#include "KeyboardGrab.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace velmar {

namespace {

constexpr int secondTry = 200; // milliseconds; another program may hold the keyboard briefly

bool isMenuThatCloses(const QObject *object, const QEvent *event) {
    return event->type() == QEvent::Hide && object->isWidgetType() &&
           static_cast<const QWidget *>(object)->windowType() == Qt::Popup;
}

} // namespace

KeyboardGrab::KeyboardGrab(QWidget &window) : window_(window) {
    later_.setSingleShot(true);
    connect(&later_, &QTimer::timeout, this, &KeyboardGrab::grab);
    qApp->installEventFilter(this);
    later_.start(0);
}

KeyboardGrab::~KeyboardGrab() {
    letGo();
}

bool KeyboardGrab::eventFilter(QObject *watched, QEvent *event) {
    if (watched == &window_) {
        if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::WindowBlocked) {
            letGo();
        } else if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowUnblocked) {
            later_.start(0);
        }
    } else if (isMenuThatCloses(watched, event) ||
               (event->type() == QEvent::Expose && isOfTheWindow(watched))) {
        // The toolkit's menus and hiding the window, even briefly, end the grab.
        later_.start(0);
    }
    return false;
}

bool KeyboardGrab::isOfTheWindow(const QObject *object) const {
    return object == window_.windowHandle();
}

bool KeyboardGrab::isWanted() const {
    return window_.isActiveWindow() && QApplication::activeModalWidget() == nullptr &&
           QApplication::activePopupWidget() == nullptr;
}

void KeyboardGrab::grab() {
    if (isWanted() && !window_.windowHandle()->setKeyboardGrabEnabled(true)) {
        later_.start(secondTry);
    }
}

void KeyboardGrab::letGo() {
    later_.stop();
    window_.windowHandle()->setKeyboardGrabEnabled(false);
}

} // namespace velmar
