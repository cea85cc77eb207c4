#include <Managers/AppTerminationService.h>

#include <Dispatch/DispatchGroup.h>
#include <Dispatch/DispatchQueue.h>
#include <Models/Actions/ActionSet.h>

#include <utility>

namespace velmar {

AppTerminationService::AppTerminationService(MainQueue &mainQueue, std::function<void()> terminateApplication,
                                             std::shared_ptr<ActionDispatcherProtocol> dispatcher,
                                             Config<std::vector<TriggeredActionSetItem>> actionSets)
    : _actionSets(std::move(actionSets)),
      mainQueue_(mainQueue),
      terminateApplication_(std::move(terminateApplication)),
      dispatcher_(std::move(dispatcher)) {}

void AppTerminationService::terminate() {
    const DispatchGroup group;
    for (const ActionSet &set : actionSetsFor<ActionTrigger::Termination>(_actionSets.wrappedValue())) {
        group.enter();
        dispatcher_->dispatch(set, [group] { group.leave(); });
    }
    group.notify(DispatchQueue("AppTerminationService"),
                 [&mainQueue = mainQueue_, end = terminateApplication_] { mainQueue.async(end); });
}

} // namespace velmar
