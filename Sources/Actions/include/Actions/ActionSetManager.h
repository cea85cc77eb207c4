#pragma once

#include <Actions/ActionDispatcher.h>
#include <Actions/ActionSet.h>
#include <Actions/CustomTriggerHandler.h>
#include <Configuration/ActionSetItem.h>
#include <Foundation/NotificationCenter.h>
#include <Foundation/RegularExpression.h>
#include <Settings/Config.h>
#include <System/RunningApplications.h>
#include <Variables/Content.h>

#include <boost/unordered/unordered_flat_map.hpp>

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

struct Services;

/// Fires the action sets of the configuration on clicks on Next and Previous, changes of variables, starts of
/// other applications, and custom triggers. Launch sets are fired by ActionSetsAppDelegateService,
/// termination sets by AppTerminationService. Owned by AppManager. Created on the main thread; destroyed
/// there after the queues that may briefly own it have stopped.
class ActionSetManager final : public ContentObserver,
                               public CustomTriggerHandler,
                               public std::enable_shared_from_this<ActionSetManager> {
public:
    /// Sets in the order of the file.
    using ActionSets = std::vector<ActionSet>;
    using ActionSetsByName =
        boost::unordered_flat_map<std::string, ActionSets, VariableNameHash, VariableNameEqual>;

    struct ByPattern {
        bool operator()(const RegularExpression &left, const RegularExpression &right) const {
            return left.pattern() < right.pattern();
        }
    };

    struct SetsForTrigger {
        ActionSets previousButtonClick;
        ActionSets nextButtonClick;
        ActionSetsByName variableUpdate;
        std::map<RegularExpression, ActionSets, ByPattern> appLaunch;
        ActionSetsByName customNames;
    };

    /// Returns the reader of all action sets of the present configuration.
    [[nodiscard]] static Config<std::vector<TriggeredActionSetItem>> configuredActionSets();

    /// Creates a manager that observes the triggers. `services` and `center` must outlive it.
    [[nodiscard]] static std::shared_ptr<ActionSetManager>
    make(std::shared_ptr<const std::vector<TriggeredActionSetItem>> actionSets, const Services &services,
         NotificationCenter &center = NotificationCenter::defaultCenter(),
         std::shared_ptr<ActionDispatcherProtocol> dispatcher = ActionDispatcher::shared());

    void dispatchSetsFor(std::string_view customTrigger) override;

    void variableDidChange(std::string_view name, const std::optional<std::string> &former,
                           const std::string &value) override;

private:
    ActionSetManager(std::shared_ptr<const std::vector<TriggeredActionSetItem>> actionSets,
                     const Services &services, std::shared_ptr<ActionDispatcherProtocol> dispatcher);

    void setupNotifications(NotificationCenter &center, RunningApplications &runningApplications);
    void dispatchSets(const ActionSets &sets) const;
    void dispatchSetsFor(const RunningApplication &application) const;

    std::shared_ptr<ActionDispatcherProtocol> dispatcher_;
    SetsForTrigger setsForTrigger_; // Immutable after construction, read on any thread.
    Content _contentVariables;
    std::vector<NotificationObserver> observers_;
    std::unique_ptr<RunningApplications::Observation> observation_;
};

} // namespace velmar
