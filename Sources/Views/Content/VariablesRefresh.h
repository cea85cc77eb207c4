#pragma once

#include <Dispatch/MainQueue.h>
#include <Variables/ObservableContent.h>

#include <functional>
#include <memory>

namespace velmar {

/// Runs a function on the main queue after changes of observed variables. Changes made before the function
/// runs are coalesced into one call. No call follows the destruction. Main thread; variables may change on
/// any thread.
class VariablesRefresh {
public:
    /// `mainQueue` must outlive all writes to variables.
    VariablesRefresh(MainQueue &mainQueue, std::function<void()> refresh,
                     std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared());
    ~VariablesRefresh();
    VariablesRefresh(const VariablesRefresh &) = delete;
    VariablesRefresh &operator=(const VariablesRefresh &) = delete;

    /// Replaces the names of the observed variables.
    void follow(const VariableNames &names);

    /// Observes the variables that `namesFor` returns for the current values. The change of any of their
    /// values read after the call causes a refresh.
    void follow(const std::function<VariableNames(const Variables &)> &namesFor);

private:
    class Observer;
    std::shared_ptr<Observer> observer_;
};

} // namespace velmar
