#pragma once

#include <Actions/Action.h>

/// Runtime forms of the actions that run commands or end the application.
namespace velmar::Actions {

/// Terminates the application, even if the user may not quit.
class TerminateApp final : public ActionOf<ActionItem::TerminateApp> {
public:
    using ActionOf::ActionOf;

private:
    void perform() override;
};

/// Action of a type that is not supported yet: logs an error and fails.
class Unavailable final : public Action {
public:
    using Action::Action;

private:
    void perform() override;
};

} // namespace velmar::Actions
