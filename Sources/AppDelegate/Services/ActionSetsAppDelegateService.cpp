#include <AppDelegate/Services/ActionSetsAppDelegateService.h>

#include <Actions/ActionSet.h>

namespace velmar {

void ActionSetsAppDelegateService::applicationDidFinishLaunching() {
    for (const ActionSet &set : actionSetsFor<ActionTrigger::Launch>(_actionSets.wrappedValue())) {
        dispatcher_->dispatch(set, nullptr);
    }
}

} // namespace velmar
