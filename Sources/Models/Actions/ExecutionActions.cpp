#include <Models/Actions/ExecutionActions.h>

#include <Extensions/LoggerExtensions.h>
#include <Models/Actions/ActionSurroundings.h>

#include <fmt/format.h>

#include <type_traits>

namespace velmar::Actions {

void TerminateApp::perform() {
    surroundings().terminateApp();
    complete(true);
}

void Unavailable::perform() {
    LoggerExtensions::error(LogSubject::actions, [this] {
        const auto type = std::visit(
            [](const auto &action) { return std::remove_cvref_t<decltype(action)>::typeIdentifier; },
            item().value);
        return fmt::format("Actions of the type '{}' cannot be run yet", rawString(type));
    });
    complete(false);
}

} // namespace velmar::Actions
