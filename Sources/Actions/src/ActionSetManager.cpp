#include <Actions/ActionSetManager.h>

#include <Base/LoggerExtensions.h>
#include <Base/NavigationNotifications.h>
#include <Base/Services.h>
#include <Configuration/Configuration.h>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <set>

namespace velmar {

namespace {

using SetsForTrigger = ActionSetManager::SetsForTrigger;
using ActionSets = ActionSetManager::ActionSets;

/// Registers a set under each of its triggers.
class Registration {
public:
    Registration(SetsForTrigger &sets, ActionSet set) : sets_(sets), set_(std::move(set)) {}

    void operator()(const ActionTrigger::VariableUpdate &trigger) {
        add(sets_.variableUpdate[trigger.variable]);
    }
    void operator()(const ActionTrigger::AppLaunch &trigger) {
        add(sets_.appLaunch[trigger.bundleIdentifier]);
    }
    void operator()(const ActionTrigger::Custom &trigger) { add(sets_.customNames[trigger.name]); }
    void operator()(const ActionTrigger::PreviousButtonClick &) { add(sets_.previousButtonClick); }
    void operator()(const ActionTrigger::NextButtonClick &) { add(sets_.nextButtonClick); }
    void operator()(const ActionTrigger::Launch &) {}
    void operator()(const ActionTrigger::Termination &) {}

private:
    void add(ActionSets &to) {
        // A repeated trigger fires the set once.
        if (to.empty() || to.back() != set_) {
            to.push_back(set_);
        }
    }

    SetsForTrigger &sets_;
    ActionSet set_;
};

} // namespace

Config<std::vector<TriggeredActionSetItem>> ActionSetManager::configuredActionSets() {
    return Config<std::vector<TriggeredActionSetItem>>(
        [](const Configuration &c) -> decltype(auto) { return c._actionSets(); });
}

std::shared_ptr<ActionSetManager>
ActionSetManager::make(std::shared_ptr<const std::vector<TriggeredActionSetItem>> actionSets,
                       const Services &services, NotificationCenter &center,
                       std::shared_ptr<ActionDispatcherProtocol> dispatcher) {
    std::shared_ptr<ActionSetManager> manager(
        new ActionSetManager(std::move(actionSets), services, std::move(dispatcher)));
    VariableNames names;
    for (const auto &[name, sets] : manager->setsForTrigger_.variableUpdate) {
        names.insert(name);
    }
    manager->_contentVariables.subscribe(manager, std::move(names));
    manager->setupNotifications(center, services.runningApplications);
    return manager;
}

ActionSetManager::ActionSetManager(std::shared_ptr<const std::vector<TriggeredActionSetItem>> actionSets,
                                   const Services &services,
                                   std::shared_ptr<ActionDispatcherProtocol> dispatcher)
    : dispatcher_(std::move(dispatcher)), _contentVariables(services.variables) {
    for (const TriggeredActionSetItem &item : *actionSets) {
        Registration registration(setsForTrigger_, {UUID(), {actionSets, &item.set}});
        for (const ActionTrigger &trigger : item._triggers()) {
            std::visit(registration, trigger.value);
        }
    }
}

void ActionSetManager::setupNotifications(NotificationCenter &center,
                                          RunningApplications &runningApplications) {
    const auto fireOn = [this, &center](std::string_view notification,
                                        const ActionSets SetsForTrigger::*sets) {
        observers_.push_back(
            center.addObserver(std::string(notification), [manager = weak_from_this(), sets] {
                if (const auto self = manager.lock()) {
                    self->dispatchSets(self->setsForTrigger_.*sets);
                }
            }));
    };
    fireOn(NavigationNotifications::willNavigateToNextSlide, &SetsForTrigger::nextButtonClick);
    fireOn(NavigationNotifications::willNavigateToPreviousSlide, &SetsForTrigger::previousButtonClick);
    // Running applications are observed only if a set needs them.
    if (!setsForTrigger_.appLaunch.empty()) {
        observation_ =
            runningApplications.observe([manager = weak_from_this()](const RunningApplication &application) {
                if (const auto self = manager.lock()) {
                    self->dispatchSetsFor(application);
                }
            });
    }
}

void ActionSetManager::dispatchSets(const ActionSets &sets) const {
    for (const ActionSet &set : sets) {
        dispatcher_->dispatch(set, nullptr);
    }
}

void ActionSetManager::variableDidChange(std::string_view name, const std::optional<std::string> & /*former*/,
                                         const std::string & /*value*/) {
    if (const auto sets = setsForTrigger_.variableUpdate.find(name);
        sets != setsForTrigger_.variableUpdate.end()) {
        dispatchSets(sets->second);
    }
}

void ActionSetManager::dispatchSetsFor(const RunningApplication &application) const {
    if (application.identifier.empty()) {
        return;
    }
    for (const auto &[pattern, sets] : setsForTrigger_.appLaunch) {
        try {
            if (pattern.firstMatch(application.identifier)) {
                dispatchSets(sets);
            }
        } catch (const RegularExpressionError &error) {
            LoggerExtensions::error(LogSubject::actions, error.errorDescription());
        }
    }
}

void ActionSetManager::dispatchSetsFor(std::string_view customTrigger) {
    const ActionSetsByName &names = setsForTrigger_.customNames;
    if (const auto sets = names.find(customTrigger); sets != names.end()) {
        dispatchSets(sets->second);
        return;
    }
    LoggerExtensions::error(LogSubject::actions, [&] {
        std::set<std::string_view> registered;
        for (const auto &[name, sets] : names) {
            registered.insert(name);
        }
        return fmt::format("Trying to execute Action sets for trigger '{}' although the trigger is not "
                           "registered.\nRegistered triggers: {}",
                           customTrigger, fmt::join(registered, ","));
    });
}

} // namespace velmar
