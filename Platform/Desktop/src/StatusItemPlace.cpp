#include <Desktop/StatusItemPlace.h>

#include "SessionBus.h"
#include "WindowManagerHints.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QTimer>

#include <utility>

namespace velmar {

namespace {

constexpr int rest = 100; // Milliseconds between two looks.
constexpr int mostLooks = 30;
constexpr int patience = 500; // Milliseconds for the panel's answer.

/// The toolkit asks the same, but once, and remembers the answer for good.
bool hasPanelOnTheBus() {
    if (!hasSessionBus()) {
        return false;
    }
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("/StatusNotifierWatcher"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call.setArguments(
        {QStringLiteral("org.kde.StatusNotifierWatcher"), QStringLiteral("IsStatusNotifierHostRegistered")});
    call.setAutoStartService(false);
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, patience);
    return answer.type() == QDBusMessage::ReplyMessage && !answer.arguments().isEmpty() &&
           answer.arguments().constFirst().value<QDBusVariant>().variant().toBool();
}

bool isThere() {
    return ownerOfSelection("_NET_SYSTEM_TRAY_S0") != 0 || hasPanelOnTheBus();
}

} // namespace

class StatusItemPlace::Wait final : public QObject {
public:
    explicit Wait(std::function<void(bool isThere)> found) : found_(std::move(found)) {
        timer_.setInterval(rest);
        connect(&timer_, &QTimer::timeout, this, [this] { look(); });
        timer_.start();
    }

private:
    void look() {
        const bool isFound = isThere();
        if (isFound || ++looks_ == mostLooks) {
            timer_.stop();
            std::exchange(found_, nullptr)(isFound);
        }
    }

    std::function<void(bool isThere)> found_;
    QTimer timer_;
    int looks_ = 0;
};

StatusItemPlace::StatusItemPlace(std::function<void(bool isThere)> found) {
    if (isThere()) {
        found(true);
    } else {
        wait_ = std::make_unique<Wait>(std::move(found));
    }
}

StatusItemPlace::~StatusItemPlace() = default;

} // namespace velmar
