#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Content of a notification; plain text.
struct UserNotification {
    /// A button of a notification.
    struct Action {
        std::string identifier; ///< Passed to the delegate when the button is pressed.
        std::string title;
        bool operator==(const Action &) const = default;
    };

    std::string title;
    std::string body;                     ///< Empty for no body.
    std::optional<std::string> soundName; ///< A sound name of the desktop's sound theme.
    std::vector<Action> actions;
};

/// The outcome of showing a notification.
struct UserNotificationOutcome {
    bool isShown = false;
    /// A sentence: the reason of a failure, or the parts that could not be shown. Empty if there is no
    /// problem.
    std::string problem;
};

/// A user's response to a notification.
struct UserNotificationResponse {
    /// Identifier of the pressed button; absent for a tap on the body.
    std::optional<std::string> actionIdentifier;
};

/// Receives the responses to this process's notifications. Main thread only.
class UserNotificationsDelegate {
public:
    virtual ~UserNotificationsDelegate() = default;

    /// Handles a response. Must call the completion handler once when it is done; the notification is then
    /// withdrawn.
    virtual void didReceive(const UserNotificationResponse &response,
                            std::function<void()> completionHandler) = 0;
};

/// Shows notifications of the desktop. Main thread only.
class UserNotifications {
public:
    using Completion = std::function<void(const UserNotificationOutcome &outcome)>;

    virtual ~UserNotifications() = default;

    /// Replaces the delegate, which is held weakly. Responses are dropped while there is none.
    virtual void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) = 0;

    /// Shows the notification and returns at once. The completion is called once, from the main loop, unless
    /// the application ends first. No permission is needed.
    virtual void add(UserNotification notification, Completion completion) = 0;
};

} // namespace velmar
