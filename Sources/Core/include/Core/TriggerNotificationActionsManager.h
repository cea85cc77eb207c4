#pragma once

#include <Core/Trigger.h>
#include <Interaction/UserNotifications.h>

#include <memory>

namespace velmar {

/// Fires the custom trigger of the pressed button of a notification. Main thread.
class TriggerNotificationActionsManager final : public UserNotificationsDelegate {
public:
    /// Creates a manager and sets it as the delegate of the notifications. The caller owns it.
    [[nodiscard]] static std::shared_ptr<TriggerNotificationActionsManager>
    make(UserNotifications &notifications, Trigger trigger = Trigger());

    /// Fires the trigger. A click on the body of the notification only logs an error.
    void didReceive(const UserNotificationResponse &response,
                    std::function<void()> completionHandler) override;

private:
    explicit TriggerNotificationActionsManager(Trigger trigger);

    Trigger _trigger;
};

} // namespace velmar
