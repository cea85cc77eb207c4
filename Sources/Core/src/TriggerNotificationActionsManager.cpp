#include <Core/TriggerNotificationActionsManager.h>

#include <Base/LoggerExtensions.h>

#include <utility>

namespace velmar {

std::shared_ptr<TriggerNotificationActionsManager>
TriggerNotificationActionsManager::make(UserNotifications &notifications, Trigger trigger) {
    std::shared_ptr<TriggerNotificationActionsManager> manager(
        new TriggerNotificationActionsManager(std::move(trigger)));
    notifications.setDelegate(manager);
    return manager;
}

TriggerNotificationActionsManager::TriggerNotificationActionsManager(Trigger trigger)
    : _trigger(std::move(trigger)) {}

void TriggerNotificationActionsManager::didReceive(const UserNotificationResponse &response,
                                                   std::function<void()> completionHandler) {
    if (!response.actionIdentifier) {
        LoggerExtensions::error(LogSubject::actions, "Received notification default notification response. "
                                                     "A trigger name should have been set.");
    } else if (const auto handler = _trigger.wrappedValue()) {
        handler->dispatchSetsFor(*response.actionIdentifier);
    }
    completionHandler();
}

} // namespace velmar
