#include "StackingGuard.h"

#include "WindowList.h"
#include "WindowManagerHints.h"

#include <QApplication>
#include <QWidget>
#include <QWindow>

#include <xcb/xcb.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <string_view>
#include <utility>

namespace velmar {

namespace {

constexpr int restBetweenLooks = 50; // milliseconds, during which changes are merged
// Limit for a window that the window manager keeps above ours or that returns each time.
constexpr int mostAttempts = 20;
constexpr std::chrono::seconds peace(1); // without attempts, after which their number is reset

bool asksForPassword(const std::string &application) {
    constexpr std::array<std::string_view, 4> programs{"polkit", "lxpolkit", "pinentry", "gcr-prompter"};
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

StackingGuard::StackingGuard(QWindow &front, std::function<void()> bringToFront, GiveUp giveUp)
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
    ++looks_;
    std::erase_if(fights_, [](const auto &fight) { return fight.second.isOver.hasExpired(); });
    const std::vector<std::uint32_t> stack = WindowList::fromTheLowest();
    learn(stack);
    const bool isCovered = findMisplaced(stack);
    const std::uint32_t active = WindowList::active();
    if (const auto known = others_.find(active); known != others_.end() && known->second.asksForPassword) {
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
    std::map<std::uint32_t, Other> known;
    for (const std::uint32_t window : stack) {
        if (const auto before = others_.find(window); before != others_.end()) {
            known[window] = std::move(before->second);
        } else if (!isOurs(window)) {
            const std::string application = WindowList::applicationOf(window);
            known[window] = {application, asksForPassword(application)};
        }
    }
    others_ = std::move(known);
}

bool StackingGuard::findMisplaced(const std::vector<std::uint32_t> &stack) {
    const auto lowest = std::find_if(stack.begin(), stack.end(), &isOurs);
    const auto highest = std::find_if(stack.rbegin(), stack.rend(), &isOurs).base();
    bool isCovered = false;
    for (auto window = stack.begin(); window != stack.end(); ++window) {
        const auto other = others_.find(*window);
        if (other == others_.end() || isOurs(*window)) {
            continue;
        }
        const bool asks = other->second.asksForPassword;
        const bool isMisplaced = asks ? window < highest : window > lowest;
        if (!isMisplaced || !mayFight(*window)) {
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
    // The active window may not be in the list yet.
    const auto known = others_.find(window);
    const Other other =
        known != others_.end() ? known->second : Other{WindowList::applicationOf(window), false};
    Fight &fight = fights_[other.application];
    fight.isOver.setRemainingTime(peace);
    if (std::exchange(fight.look, looks_) != looks_ && ++fight.attempts == mostAttempts + 1) {
        // The application is stored as name and class, separated by NUL.
        giveUp_(other.application.substr(0, other.application.find('\0')), other.asksForPassword);
    }
    return fight.attempts <= mostAttempts;
}

} // namespace velmar
