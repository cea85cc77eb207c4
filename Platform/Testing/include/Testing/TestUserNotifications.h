#pragma once

#include <Interaction/UserNotifications.h>

#include <utility>
#include <vector>

namespace velmar {

/// A fake that records notifications; the test responds to them.
class TestUserNotifications final : public UserNotifications {
public:
    UserNotificationOutcome outcome{.isShown = true, .problem = {}};
    std::vector<UserNotification> notifications; ///< All notifications, in the order of the calls.
    int handledResponses = 0;

    /// Simulates a press of an action's button, or a tap on the body.
    void respond(std::optional<std::string> actionIdentifier) {
        if (const auto delegate = delegate_.lock()) {
            delegate->didReceive({std::move(actionIdentifier)}, [this] { ++handledResponses; });
        }
    }

    void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) override {
        delegate_ = std::move(delegate);
    }
    void add(UserNotification notification, Completion completion) override {
        notifications.push_back(std::move(notification));
        completion(outcome);
    }

private:
    std::weak_ptr<UserNotificationsDelegate> delegate_;
};

} // namespace velmar
