#include <Managers/AppTerminationService.h>

#include <Constants/Domain.h>
#include <Extensions/LoggerExtensions.h>
#include <Models/Actions/ActionSet.h>

#include <utility>

namespace velmar {

AppTerminationService::AppTerminationService(MainQueue &mainQueue, std::function<void()> terminateApplication,
                                             std::shared_ptr<ActionDispatcherProtocol> dispatcher,
                                             Config<std::vector<TriggeredActionSetItem>> actionSets)
    : _actionSets(std::move(actionSets)),
      mainQueue_(mainQueue),
      terminateApplication_(std::move(terminateApplication)),
      dispatcher_(std::move(dispatcher)),
      _underWay({}, std::string(Domain::bundleIdentifier) + ".AppTerminationService.underWay") {}

void AppTerminationService::terminate() {
    const auto left = std::make_shared<SetsLeft>(1);
    const bool begins = _underWay.mutate([&](auto &underWay) {
        const bool isFree = underWay.expired();
        underWay = isFree ? left : underWay;
        return isFree;
    });
    if (!begins) {
        LoggerExtensions::info(LogSubject::termination,
                               "The action sets of the termination are still running");
        return;
    }
    const auto endOne = [left, &mainQueue = mainQueue_, end = terminateApplication_] {
        if (--*left == 0) {
            mainQueue.async([left, end] { end(); });
        }
    };
    for (const ActionSet &set : actionSetsFor<ActionTrigger::Termination>(_actionSets.wrappedValue())) {
        ++*left;
        dispatcher_->dispatch(set, endOne);
    }
    endOne();
}

} // namespace velmar
