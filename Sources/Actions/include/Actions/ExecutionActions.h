#pragma once

#include <Actions/Action.h>

/// The actions that run something or end something, as they run.
namespace velmar::Actions {

/// Ends the application, whatever would hold a quit of the user back.
class TerminateApp final : public ActionOf<ActionItem::TerminateApp> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Stands for the kinds of actions that this program can't run yet: it says so and fails.
class Unavailable final : public Action {
public:
    using Action::Action;

private:
    void perform() override;
};

} // namespace velmar::Actions
