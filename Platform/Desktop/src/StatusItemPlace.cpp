#include <Desktop/StatusItemPlace.h>

#include "WindowManagerHints.h"

#include <Desktop/SessionBus.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QElapsedTimer>
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
        sinceSeen_.start();
        connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        timer_.start(0);
    }

private:
    void look() {
        timer_.setInterval(isThere_ ? restOnceThere : restWhileWaiting);
        if (ownerOfSelection("_NET_SYSTEM_TRAY_S0") != 0) {
            wasSeen();
        } else if (sinceSeen_.hasExpired(isThere_ ? absence : patience)) {
            timer_.stop();
            tell_(false);
        } else if (!isAsking_ && hasSessionBus()) {
            askPanelOnTheBus();
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
        isAsking_ = true;
        auto *watcher =
            new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question, patience), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
            const QDBusPendingReply<QDBusVariant> answer = *watcher;
            watcher->deleteLater();
            isAsking_ = false;
            if (timer_.isActive() && !answer.isError() && answer.value().variant().toBool()) {
                wasSeen();
            }
        });
    }

    void wasSeen() {
        sinceSeen_.start();
        if (!std::exchange(isThere_, true)) {
            timer_.setInterval(restOnceThere);
            tell_(true);
        }
    }

    std::function<void(bool isThere)> tell_;
    QTimer timer_;
    QElapsedTimer sinceSeen_; // Or since the beginning.
    bool isThere_ = false;
    bool isAsking_ = false;
};

StatusItemPlace::StatusItemPlace(std::function<void(bool isThere)> tell)
    : watch_(std::make_unique<Watch>(std::move(tell))) {}

StatusItemPlace::~StatusItemPlace() = default;

} // namespace velmar
