#include "StackingGuard.h"

#include "WindowList.h"
#include "WindowManagerHints.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace velmar {

namespace {

constexpr int restBetweenLooks = 50; // Milliseconds, in which changes come together.
// A window that the window manager keeps above ours whatever is asked, or that comes back each time, is not
// fought without end.
constexpr int mostAttempts = 20;
constexpr int peace = 1000; // Milliseconds after which the attempts are counted anew.

bool asksForPassword(std::uint32_t window) {
    constexpr std::array<std::string_view, 4> programs{"polkit", "lxpolkit", "pinentry", "gcr-prompter"};
    const std::string application = WindowList::applicationOf(window);
    return std::any_of(programs.begin(), programs.end(), [&](std::string_view program) {
        return application.find(program) != std::string::npos;
    });
}

bool isOurs(std::uint32_t number) {
    const QWindowList own = QGuiApplication::topLevelWindows();
    return std::any_of(own.begin(), own.end(), [number](const QWindow *window) {
        return window->isVisible() && window->winId() == number;
    });
}

bool takesOurKeys(std::uint32_t number) {
    const QWindowList own = QGuiApplication::topLevelWindows();
    return std::any_of(own.begin(), own.end(), [number](const QWindow *window) {
        return window->isVisible() && window->winId() == number &&
               !window->flags().testFlag(Qt::WindowDoesNotAcceptFocus);
    });
}

} // namespace

StackingGuard::StackingGuard(QWindow &front, std::function<void()> bringToFront,
                             std::function<void(const std::string &application)> giveUp)
    : front_(front),
      bringToFront_(std::move(bringToFront)),
      giveUp_(std::move(giveUp)),
      stacking_(atomOfWindowSystem("_NET_CLIENT_LIST_STACKING")),
      active_(atomOfWindowSystem("_NET_ACTIVE_WINDOW")) {
    later_.setSingleShot(true);
    QObject::connect(&later_, &QTimer::timeout, [this] { look(); });
    if (stacking_ != 0) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }
}

StackingGuard::~StackingGuard() {
    if (auto *application = QCoreApplication::instance()) {
        application->removeNativeEventFilter(this);
    }
}

bool StackingGuard::nativeEventFilter(const QByteArray &eventType, void *message, qintptr * /*result*/) {
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    constexpr std::uint8_t sentBySomebody = 0x80;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & ~sentBySomebody) == XCB_PROPERTY_NOTIFY) {
        const xcb_atom_t property = static_cast<const xcb_property_notify_event_t *>(message)->atom;
        if ((property == stacking_ || property == active_) && !later_.isActive()) {
            later_.start(restBetweenLooks);
        }
    }
    return false;
}

void StackingGuard::look() {
    const std::vector<std::uint32_t> stack = WindowList::fromTheLowest();
    learn(stack);
    const bool isCovered = findMisplaced(stack);
    const std::uint32_t active = WindowList::active();
    if (const auto asking = asksForPassword_.find(active);
        asking != asksForPassword_.end() && asking->second) {
        return;
    }
    const bool lostTheKeyboard = active != 0 && !takesOurKeys(active) && mayFight(active);
    if (isCovered || lostTheKeyboard) {
        bringToFront_();
        if (lostTheKeyboard) {
            const QWidget *dialog = QApplication::activeModalWidget();
            const QWindow &window = dialog == nullptr ? front_ : *dialog->windowHandle();
            WindowList::activate(static_cast<std::uint32_t>(window.winId()));
        }
    }
}

void StackingGuard::learn(const std::vector<std::uint32_t> &stack) {
    std::map<std::uint32_t, bool> known;
    for (const std::uint32_t window : stack) {
        const auto before = asksForPassword_.find(window);
        known[window] =
            before == asksForPassword_.end() ? !isOurs(window) && asksForPassword(window) : before->second;
    }
    asksForPassword_ = std::move(known);
    std::erase_if(fights_, [this](const auto &fight) { return !asksForPassword_.contains(fight.first); });
}

bool StackingGuard::findMisplaced(const std::vector<std::uint32_t> &stack) {
    const auto lowest = std::find_if(stack.begin(), stack.end(), &isOurs);
    const auto highest = std::find_if(stack.rbegin(), stack.rend(), &isOurs).base();
    bool isCovered = false;
    for (auto window = stack.begin(); window != stack.end(); ++window) {
        const bool asks = asksForPassword_[*window];
        const bool isMisplaced = asks ? window < highest : window > lowest;
        if (!isMisplaced || isOurs(*window) || !mayFight(*window)) {
            continue;
        }
        if (asks) {
            front_.setKeyboardGrabEnabled(false);
            WindowList::lift(*window);
        } else {
            isCovered = true;
        }
    }
    return isCovered;
}

bool StackingGuard::mayFight(std::uint32_t window) {
    Fight &fight = fights_[window];
    const bool isSameLook = fight.sinceLast.isValid() && fight.sinceLast.elapsed() < restBetweenLooks / 2;
    if (!isSameLook) {
        if (fight.sinceLast.isValid() && fight.sinceLast.hasExpired(peace)) {
            fight.attempts = 0;
        }
        fight.sinceLast.start();
        if (++fight.attempts == mostAttempts + 1) {
            giveUp_(WindowList::applicationOf(window));
        }
    }
    return fight.attempts <= mostAttempts;
}

} // namespace velmar
