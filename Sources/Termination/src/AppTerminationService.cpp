#include <Termination/AppTerminationService.h>

#include <Actions/ActionSet.h>
#include <Base/Domain.h>
#include <Base/LoggerExtensions.h>

#include <fmt/format.h>

#include <utility>

namespace velmar {

AppTerminationService::AppTerminationService(MainQueue &mainQueue, std::function<void()> terminateApplication,
                                             std::shared_ptr<ActionDispatcherProtocol> dispatcher,
                                             Config<std::vector<TriggeredActionSetItem>> actionSets,
                                             std::chrono::seconds patience)
    : _actionSets(std::move(actionSets)),
      mainQueue_(mainQueue),
      terminateApplication_(std::move(terminateApplication)),
      dispatcher_(std::move(dispatcher)),
      patience_(patience),
      _underWay({}, std::string(Domain::bundleIdentifier) + ".AppTerminationService.underWay") {}

void AppTerminationService::terminate() {
    const auto left = std::make_shared<SetsLeft>(1);
    const auto now = std::chrono::steady_clock::now();
    const bool begins = _underWay.mutate([&](Attempt &underWay) {
        const bool isFree = underWay.left.expired() || now - underWay.begin >= patience_;
        if (isFree) {
            underWay = {left, now};
        }
        return isFree;
    });
    if (!begins) {
        LoggerExtensions::warning(LogSubject::termination, [this] {
            return fmt::format(
                "The action sets of the trigger 'Termination' are still running; an attempt to quit more "
                "than {} seconds after their begin runs them anew",
                patience_.count());
        });
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
