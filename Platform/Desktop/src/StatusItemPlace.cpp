#include <Desktop/StatusItemPlace.h>

#include "WindowManagerHints.h"

#include <Desktop/SessionBus.h>

#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTimer>

#include <utility>

namespace velmar {

namespace {

// In milliseconds.
constexpr int restWhileWaiting = 100; // between looks before the place appears
constexpr int restOnceThere = 1000;   // between looks afterwards
constexpr int patience = 3000;        // time for the place to appear
constexpr int absence = 5000;         // time for the place to return

} // namespace

class StatusItemPlace::Watch final : public QObject {
public:
    explicit Watch(std::function<void(bool isThere)> tell) : tell_(std::move(tell)) {
        timer_.setSingleShot(true);
        connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        timer_.start(0);
    }

private:
    void look() {
        if (ownerOfSelection("_NET_SYSTEM_TRAY_S0") != 0) {
            wasSeen();
        } else if (hasSessionBus()) {
            askPanelOnTheBus();
        } else {
            wasMissed(0);
        }
    }

    /// Asynchronous, unlike the toolkit's own check, which blocks.
    void askPanelOnTheBus() {
        QDBusMessage question = QDBusMessage::createMethodCall(
            QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
            QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        question.setArguments({QStringLiteral("org.kde.StatusNotifierWatcher"),
                               QStringLiteral("IsStatusNotifierHostRegistered")});
        question.setAutoStartService(false);
        auto *watcher =
            new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, patience), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            const QDBusPendingReply<QDBusVariant> answer = *watcher;
            watcher->deleteLater();
            if (!answer.isError() && answer.value().variant().toBool()) {
                wasSeen();
            } else {
                wasMissed(answer.error().type() == QDBusError::NoReply ? patience : 0);
            }
        });
    }

    void wasSeen() {
        missedFor_ = 0;
        timer_.start(restOnceThere);
        if (!std::exchange(isThere_, true)) {
            tell_(true);
        }
    }

    /// Adds only intended waiting time, so that a stall of this process doesn't count against the panel.
    void wasMissed(int waited) {
        const int rest = isThere_ ? restOnceThere : restWhileWaiting;
        missedFor_ += waited + rest;
        if (missedFor_ > (isThere_ ? absence : patience)) {
            tell_(false);
        } else {
            timer_.start(rest);
        }
    }

    std::function<void(bool isThere)> tell_;
    QTimer timer_; // for the next look
    int missedFor_ = 0;
    bool isThere_ = false;
};

StatusItemPlace::StatusItemPlace(std::function<void(bool isThere)> tell)
    : watch_(std::make_unique<Watch>(std::move(tell))) {}

StatusItemPlace::~StatusItemPlace() = default;

} // namespace velmar
