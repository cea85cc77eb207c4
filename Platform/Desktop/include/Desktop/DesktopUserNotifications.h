#pragma once

#include <Interaction/UserNotifications.h>

#include <chrono>
#include <memory>

namespace velmar {

class NotificationService;

/// Shows notifications through the desktop's notification service, to which it connects on demand.
/// Notifications remain when the application ends.
class DesktopUserNotifications final : public UserNotifications {
public:
    /// `timeout` applies to each of the two calls per notification; a slower service counts as missing.
    explicit DesktopUserNotifications(std::chrono::milliseconds timeout = std::chrono::seconds(10));
    ~DesktopUserNotifications() override;
    DesktopUserNotifications(const DesktopUserNotifications &) = delete;
    DesktopUserNotifications &operator=(const DesktopUserNotifications &) = delete;

    void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) override;
    void add(UserNotification notification, Completion completion) override;

private:
    std::unique_ptr<NotificationService> service_;
};

} // namespace velmar
