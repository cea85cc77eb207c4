#include <Models/Actions/Action.h>

#include <Dispatch/MainQueue.h>
#include <Extensions/Evaluatable.h>
#include <Extensions/LoggerExtensions.h>
#include <Models/Actions/ActionSurroundings.h>

#include <exception>

namespace velmar {

void Action::dispatch() {
    try {
        if (const auto &condition = item_->condition(); condition && !evaluate(*condition)) {
            return;
        }
    } catch (const std::exception &error) {
        LoggerExtensions::error(LogSubject::actions, error.what());
        return;
    }
    performReportingFailure([this] { perform(); });
}

void Action::performOnMainThread(std::function<void()> work) {
    surroundings_->mainQueue.async(
        [self = shared_from_this(), work = std::move(work)] { self->performReportingFailure(work); });
}

void Action::performReportingFailure(const std::function<void()> &work) noexcept {
    try {
        work();
    } catch (const std::exception &error) {
        LoggerExtensions::error(LogSubject::actions, error.what());
        complete(false);
    }
}

void Action::complete(bool success) {
    // What the block holds may hold the action in its turn.
    if (const auto block = std::exchange(successCompletionBlock_, nullptr)) {
        block(success);
    }
}

} // namespace velmar
