#include "NotificationService.h"

#include <Desktop/SessionBus.h>
#include <Desktop/ShortText.h>

#include <Dispatch/UncaughtHandler.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QGuiApplication>
#include <QPointer>
#include <QVariantMap>

#include <cstddef>
#include <utility>

namespace velmar {

namespace {

const auto serviceName = QStringLiteral("org.freedesktop.Notifications");
const auto path = QStringLiteral("/org/freedesktop/Notifications");
const auto interface = QStringLiteral("org.freedesktop.Notifications");
// A separate connection: the toolkit doesn't reopen the shared one once it is lost.
const auto connectionName = QStringLiteral("UserNotifications");
// Identifier of a tap on the body, given by the service's protocol.
const auto tapOnBody = QStringLiteral("default");
// Limit of characters: the bus disconnects clients that send too much.
constexpr qsizetype longestText = 10'000;
// Limit for the bus to answer; the main thread waits for it.
constexpr std::chrono::milliseconds patience(500);
// Time between two checks of a silent bus.
constexpr std::chrono::seconds rest(30);

QDBusMessage methodCall(const QString &method, const QVariantList &arguments = {}) {
    QDBusMessage message = QDBusMessage::createMethodCall(serviceName, path, interface, method);
    message.setArguments(arguments);
    return message;
}

QString shownText(const std::string &text) {
    QString shown = QString::fromStdString(text);
    shown.remove(QChar::Null); // The service would cut the text there.
    return shortened(shown, longestText);
}

UserNotificationOutcome notShown(QString reason) {
    // Some error messages of the bus end in a full stop.
    while (reason.endsWith(QLatin1Char('.'))) {
        reason.chop(1);
    }
    return {.isShown = false,
            .problem = QStringLiteral("The notification can't be shown: %1.").arg(reason).toStdString()};
}

UserNotificationOutcome notShown(const QDBusError &error) {
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
        return notShown(QStringLiteral("the desktop has no notification service"));
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return notShown(QStringLiteral("the notification service does not answer"));
    default:
        return notShown(error.message().isEmpty() ? error.name() : error.message());
    }
}

} // namespace

NotificationService::NotificationService(std::chrono::milliseconds timeout) : timeout_(timeout) {}

NotificationService::~NotificationService() {
    QDBusConnection::disconnectFromBus(connectionName);
}

template <class Answer, class Next>
void NotificationService::call(const QDBusMessage &message, const UserNotifications::Completion &completion,
                               Next next) {
    const auto pending =
        QDBusConnection(connectionName).asyncCall(message, static_cast<int>(timeout_.count()));
    auto *watcher = new QDBusPendingCallWatcher(pending, this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [=] {
        const QDBusPendingReply<Answer> reply = *watcher;
        watcher->deleteLater();
        runReportingUncaught("UserNotifications", [&] {
            if (reply.isError()) {
                completion(notShown(reply.error()));
            } else {
                next(reply.value());
            }
        });
    });
}

void NotificationService::add(UserNotification notification, UserNotifications::Completion completion) {
    if (const QString reason = connectionProblem(); !reason.isEmpty()) {
        QMetaObject::invokeMethod(
            this,
            [completion = std::move(completion), reason] {
                runReportingUncaught("UserNotifications", [&] { completion(notShown(reason)); });
            },
            Qt::QueuedConnection);
        return;
    }
    call<QStringList>(methodCall(QStringLiteral("GetCapabilities")), completion,
                      [this, notification = std::move(notification), completion](
                          const QStringList &capabilities) { show(notification, capabilities, completion); });
}

QString NotificationService::connectionProblem() {
    if (QDBusConnection(connectionName).isConnected()) {
        return {};
    }
    QDBusConnection::disconnectFromBus(connectionName);
    forgetAll();
    if (!hasSessionBus()) {
        return QStringLiteral("there is no session bus");
    }
    if (busIsSilent_.hasExpired() && isSessionBusSilent(patience)) {
        busIsSilent_.setRemainingTime(rest);
    }
    if (!busIsSilent_.hasExpired()) {
        return QStringLiteral("the session bus does not answer");
    }
    // Connecting by address would make the toolkit abort the process if the bus refuses.
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
    if (!bus.isConnected()) {
        return QStringLiteral("the session bus cannot be reached: ") + bus.lastError().message();
    }
    bus.connect(serviceName, path, interface, QStringLiteral("ActionInvoked"), this,
                SLOT(actionInvoked(uint, QString)));
    bus.connect(serviceName, path, interface, QStringLiteral("NotificationClosed"), this,
                SLOT(notificationClosed(uint, uint)));
    // A restarted service numbers its notifications from the start.
    watcher_ = std::make_unique<QDBusServiceWatcher>(serviceName, bus);
    connect(watcher_.get(), &QDBusServiceWatcher::serviceUnregistered, this, &NotificationService::forgetAll);
    return {};
}

void NotificationService::forgetAll() {
    shown_.clear();
}

void NotificationService::show(const UserNotification &notification, const QStringList &capabilities,
                               const UserNotifications::Completion &completion) {
    std::string missing;
    QString body = shownText(notification.body);
    if (capabilities.contains(QStringLiteral("body-markup"))) {
        body = body.toHtmlEscaped();
    }
    QStringList actions;
    std::vector<std::string> identifiers;
    if (capabilities.contains(QStringLiteral("actions"))) {
        actions << tapOnBody << QString();
        for (const UserNotification::Action &action : notification.actions) {
            actions << QString::number(identifiers.size()) << shownText(action.title);
            identifiers.push_back(action.identifier);
        }
    } else if (!notification.actions.empty()) {
        missing = "The notification is shown without its buttons: the notification service has none.";
    }
    QVariantMap hints{{QStringLiteral("desktop-entry"), QGuiApplication::desktopFileName()}};
    if (notification.soundName) {
        hints[QStringLiteral("sound-name")] = shownText(*notification.soundName);
        if (!capabilities.contains(QStringLiteral("sound"))) {
            missing += std::string(missing.empty() ? "" : " ") +
                       "The notification is silent: the notification service plays no sounds.";
        }
    }
    constexpr uint replacesNone = 0;
    constexpr int expiresAsUsual = -1;
    const QString noIcon;
    call<uint>(methodCall(QStringLiteral("Notify"),
                          {QCoreApplication::applicationName(), replacesNone, noIcon,
                           shownText(notification.title), body, actions, hints, expiresAsUsual}),
               completion, [this, identifiers = std::move(identifiers), missing, completion](uint number) {
                   shown_[number] = identifiers;
                   completion({.isShown = true, .problem = missing});
               });
}

void NotificationService::actionInvoked(uint number, const QString &key) {
    const auto found = shown_.constFind(number);
    if (found == shown_.cend()) {
        return; // a notification of another application
    }
    bool isNumber = false;
    const std::size_t index = key.toUInt(&isNumber);
    UserNotificationResponse response;
    if (isNumber && index < found->size()) {
        response.actionIdentifier = (*found)[index];
    } else if (key != tapOnBody) {
        return;
    }
    if (const auto delegate = delegate_.lock()) {
        runReportingUncaught("UserNotifications", [&] {
            delegate->didReceive(response, [self = QPointer(this), number] {
                if (self) {
                    self->withdraw(number);
                }
            });
        });
    }
}

void NotificationService::notificationClosed(uint number, uint /*reason*/) {
    shown_.remove(number);
}

void NotificationService::withdraw(uint number) {
    shown_.remove(number);
    // The service may have closed it already, which is harmless.
    QDBusConnection(connectionName).send(methodCall(QStringLiteral("CloseNotification"), {number}));
}

} // namespace velmar
