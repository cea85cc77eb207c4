#pragma once

#include <Actions/ActionSetManager.h>
#include <AppDelegate/AppDelegateService.h>

#include <memory>
#include <utility>
#include <vector>

namespace velmar {

/// Fires the launch action sets, in the order of the file.
class ActionSetsAppDelegateService final : public AppDelegateService {
public:
    explicit ActionSetsAppDelegateService(
        std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared())
        : dispatcher_(std::move(dispatcher)) {}

    void applicationDidFinishLaunching() override;

private:
    Config<std::vector<TriggeredActionSetItem>> _actionSets = ActionSetManager::configuredActionSets();
    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
};

} // namespace velmar
