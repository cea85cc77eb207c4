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

/// Sorts the sets of actions of the configuration by what triggers them, once, and fires them: on clicks on
/// Next and Previous, changes of variables, starts of other applications and custom triggers. Those of the
/// launch and of the termination are others' to fire. Owned by AppManager. Made on the main thread; destroyed
/// there, too, once no queue runs that may hold it for a moment.
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

    /// All sets of the configuration of the moment.
    [[nodiscard]] static Config<std::vector<TriggeredActionSetItem>> configuredActionSets();

    /// Begins to follow the triggers at once. The centre must outlive the manager.
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
    SetsForTrigger setsForTrigger_; // Never changes, so that any thread reads it.
    Content _contentVariables;
    std::vector<NotificationObserver> observers_;
    std::unique_ptr<RunningApplications::Observation> observation_;
};

} // namespace velmar
