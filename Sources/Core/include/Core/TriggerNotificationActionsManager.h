#pragma once

#include <Core/Trigger.h>
#include <Interaction/UserNotifications.h>

#include <memory>

namespace velmar {

/// Fires the custom trigger that the pressed button of a notification names. Main thread.
class TriggerNotificationActionsManager final : public UserNotificationsDelegate {
public:
    /// Becomes the delegate of the notifications, as long as it lives.
    [[nodiscard]] static std::shared_ptr<TriggerNotificationActionsManager>
    make(UserNotifications &notifications, Trigger trigger = Trigger());

    /// A tap on the body is an error in the log, and no more.
    void didReceive(const UserNotificationResponse &response,
                    std::function<void()> completionHandler) override;

private:
    explicit TriggerNotificationActionsManager(Trigger trigger);

    Trigger _trigger;
};

} // namespace velmar
