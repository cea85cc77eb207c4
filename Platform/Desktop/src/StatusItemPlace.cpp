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

// Milliseconds.
constexpr int restWhileWaiting = 100; // Between two looks,
constexpr int restOnceThere = 1000;   // of which the later ones are for a place that goes.
constexpr int patience = 3000;        // For a place that comes,
constexpr int absence = 5000;         // and for one that comes back.

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

    /// The toolkit asks the same, but once, while everything waits for the answer.
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

    /// Counts what was waited for by intent: when the program itself stands still for a while, the panel is
    /// not to blame.
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
    QTimer timer_; // To the next look.
    int missedFor_ = 0;
    bool isThere_ = false;
};

StatusItemPlace::StatusItemPlace(std::function<void(bool isThere)> tell)
    : watch_(std::make_unique<Watch>(std::move(tell))) {}

StatusItemPlace::~StatusItemPlace() = default;

} // namespace velmar
