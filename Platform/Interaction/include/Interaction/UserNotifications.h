#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// What a notification says; plain texts.
struct UserNotification {
    /// A button.
    struct Action {
        std::string identifier; ///< What the delegate is told when it is pressed.
        std::string title;
        bool operator==(const Action &) const = default;
    };

    std::string title;
    std::string body;                     ///< Empty for none.
    std::optional<std::string> soundName; ///< A name of the desktop's sound theme.
    std::vector<Action> actions;
};

/// How the showing of a notification ended.
struct UserNotificationOutcome {
    bool isShown = false;
    std::string problem; ///< If not, why; if so, what of it is missing; empty for nothing. A sentence.
};

/// What a person has done with a notification.
struct UserNotificationResponse {
    std::optional<std::string> actionIdentifier; ///< That of the button; none for a tap on the body.
};

/// Is told the responses to the notifications of this process. Main thread.
class UserNotificationsDelegate {
public:
    virtual ~UserNotificationsDelegate() = default;

    /// Calls the completion handler, once, when it is done with the response; the notification goes then.
    virtual void didReceive(const UserNotificationResponse &response,
                            std::function<void()> completionHandler) = 0;
};

/// Shows notifications, beside the windows of the application. Main thread.
class UserNotifications {
public:
    using Completion = std::function<void(const UserNotificationOutcome &outcome)>;

    virtual ~UserNotifications() = default;

    /// Replaces the delegate, which is held weakly; responses that nobody is told of are dropped.
    virtual void setDelegate(std::weak_ptr<UserNotificationsDelegate> delegate) = 0;

    /// Shows the notification and returns at once. The completion is called once, from the main loop, unless
    /// the application ends before. Nobody has to be asked for leave.
    virtual void add(UserNotification notification, Completion completion) = 0;
};

} // namespace velmar
