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

/// Client of the desktop's notification service, org.freedesktop.Notifications. Keeps track of this process's
/// notifications.
class NotificationService final : public QObject {
    Q_OBJECT

public:
    /// `timeout` applies to each call.
    explicit NotificationService(std::chrono::milliseconds timeout);
    ~NotificationService() override;
    NotificationService(const NotificationService &) = delete;
    NotificationService &operator=(const NotificationService &) = delete;

    void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) { delegate_ = std::move(delegate); }

    /// Calls the completion from the main loop.
    void add(UserNotification notification, UserNotifications::Completion completion);

private:
    Q_SLOT void actionInvoked(uint number, const QString &key);
    Q_SLOT void notificationClosed(uint number, uint reason);

    /// Connects to the bus if necessary. Returns the reason of a failure, or an empty text.
    QString connectionProblem();
    void show(const UserNotification &notification, const QStringList &capabilities,
              const UserNotifications::Completion &completion);
    void withdraw(uint number);
    void forgetAll();

    /// Calls the service. Passes a reply to `next` and reports an error to the completion.
    template <class Answer, class Next>
    void call(const QDBusMessage &message, const UserNotifications::Completion &completion, Next next);

    std::chrono::milliseconds timeout_;
    QDeadlineTimer busIsSilent_{0}; // the bus counts as silent until then
    std::weak_ptr<UserNotificationsDelegate> delegate_;
    std::unique_ptr<QDBusServiceWatcher> watcher_;
    QHash<uint, std::vector<std::string>> shown_; // action identifiers by the service's number
};

} // namespace velmar
