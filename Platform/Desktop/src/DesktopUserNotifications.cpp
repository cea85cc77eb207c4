#include <Desktop/DesktopUserNotifications.h>

#include "NotificationService.h"

#include <utility>

namespace velmar {

DesktopUserNotifications::DesktopUserNotifications(std::chrono::milliseconds timeout)
    : service_(std::make_unique<NotificationService>(timeout)) {}

DesktopUserNotifications::~DesktopUserNotifications() = default;

void DesktopUserNotifications::setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) {
    service_->setDelegate(std::move(delegate));
}

void DesktopUserNotifications::add(UserNotification notification, Completion completion) {
    service_->add(std::move(notification), std::move(completion));
}

} // namespace velmar
