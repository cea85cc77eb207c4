#pragma once

#include <Dispatch/MainQueue.h>
#include <Variables/ObservableContent.h>

#include <functional>
#include <memory>

namespace velmar {

/// Runs a function on the main queue after a change of variables that concern its owner: once, however many
/// changes came before the queue got to it, and never after the owner let go of it. Main thread; the
/// variables may change on any.
class VariablesRefresh {
public:
    /// The queue must outlive what writes variables.
    VariablesRefresh(MainQueue &mainQueue, std::function<void()> refresh,
                     std::shared_ptr<ContentManagerProtocol> contentManager = ContentManager::shared());
    ~VariablesRefresh();
    VariablesRefresh(const VariablesRefresh &) = delete;
    VariablesRefresh &operator=(const VariablesRefresh &) = delete;

    /// From now on the variables with these names concern the owner, and no others.
    void follow(const VariableNames &names);

    /// The same where the names depend on the values. Whatever is read after the call and changes later is
    /// told.
    void follow(const std::function<VariableNames(const Variables &)> &namesFor);

private:
    class Observer;
    std::shared_ptr<Observer> observer_;
};

} // namespace velmar
