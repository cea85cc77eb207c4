#pragma once

#include <Interaction/UserNotifications.h>

#include <chrono>
#include <memory>

namespace velmar {

class NotificationService;

/// Shows notifications by the desktop's notification service, which it looks for when there is something to
/// show. They stay when the application ends.
class DesktopUserNotifications final : public UserNotifications {
public:
    /// A service that takes longer than the timeout for one of its two answers counts as none.
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
