#include <Actions/ExecutionActions.h>

#include <Actions/ActionContext.h>
#include <Base/LoggerExtensions.h>

#include <fmt/format.h>

namespace velmar::Actions {

void TerminateApp::perform() {
    context().terminateApp();
    complete(true);
}

void Unavailable::perform() {
    LoggerExtensions::error(LogSubject::actions, [this] {
        return fmt::format("Actions of the type '{}' cannot be run yet", typeOf(item()));
    });
    complete(false);
}

} // namespace velmar::Actions
