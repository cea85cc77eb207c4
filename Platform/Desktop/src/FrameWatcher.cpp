#include "FrameWatcher.h"

#include "WindowManagerHints.h"

#include <QCoreApplication>
#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

#include <utility>

namespace velmar {

FrameWatcher::FrameWatcher(const QWindow &window, std::function<void()> framed)
    : window_(window), framed_(std::move(framed)), property_(atomOfWindowSystem("_NET_FRAME_EXTENTS")) {
    if (property_ != 0) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
}

FrameWatcher::~FrameWatcher() {
    if (auto *application = QCoreApplication::instance()) {
        application->removeNativeEventFilter(this);
    }
}

bool FrameWatcher::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/) {
    if (eventType != "xcb_generic_event_t" || !framed_) {
        return false;
    }
    constexpr std::uint8_t sentBySomebody = 0x80;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~sentBySomebody) == XCB_PROPERTY_NOTIFY) {
        const auto *change = static_cast<const xcb_property_notify_event_t *>(message);
        if (change->atom == property_ && change->window == static_cast<xcb_window_t>(window_.winId()) &&
            change->state == XCB_PROPERTY_NEW_VALUE) {
            // Deferred: the toolkit must process the event first.
            QTimer::singleShot(0, &window_, std::exchange(framed_, nullptr));
        }
    }
    return false;
}

} // namespace velmar
