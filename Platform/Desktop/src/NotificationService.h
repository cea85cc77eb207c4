#pragma once

#include <Interaction/UserNotifications.h>

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDeadlineTimer>
#include <QHash>
#include <QObject>

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velmar {

/// The notification service of the desktop, org.freedesktop.Notifications, and what it shows for us.
class NotificationService final : public QObject {
    Q_OBJECT

public:
    /// The timeout is that of each call.
    explicit NotificationService(std::chrono::milliseconds timeout);
    ~NotificationService() override;
    NotificationService(const NotificationService &) = delete;
    NotificationService &operator=(const NotificationService &) = delete;

    void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) { delegate_ = std::move(delegate); }

    /// The completion is called from the main loop.
    void add(UserNotification notification, UserNotifications::Completion completion);

private:
    Q_SLOT void actionInvoked(uint number, const QString &key);
    Q_SLOT void notificationClosed(uint number, uint reason);

    /// Connects to the bus if that has to be done. Empty if there is a connection.
    QString connectionProblem();
    void show(const UserNotification &notification, const QStringList &capabilities,
              const UserNotifications::Completion &completion);
    void withdraw(uint number);
    void forgetAll();

    /// What the service answers goes to `next`, and that it doesn't to the completion.
    template <class Answer, class Next>
    void call(const QDBusMessage &message, const UserNotifications::Completion &completion, Next next);

    std::chrono::milliseconds timeout_;
    QDeadlineTimer busIsSilent_{0}; // Taken for silent until then.
    std::weak_ptr<UserNotificationsDelegate> delegate_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    QHash<uint, std::vector<std::string>> shown_; // The identifiers of the actions, by the service's number.
};

} // namespace velmar
