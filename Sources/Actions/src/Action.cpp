#include <Actions/Action.h>

#include <Actions/ActionContext.h>
#include <Base/LoggerExtensions.h>
#include <Base/Services.h>
#include <Dispatch/MainQueue.h>
#include <Dispatch/UncaughtHandler.h>
#include <Variables/Evaluatable.h>

#include <exception>
#include <type_traits>

namespace velmar {

void Action::dispatch() {
    try {
        if (const auto &condition = item_->condition(); condition && !evaluate(*condition)) {
            return;
        }
    } catch (...) {
        LoggerExtensions::error(LogSubject::actions, textOf(std::current_exception()));
        return;
    }
    performReportingFailure([this] { perform(); });
}

void Action::performOnMainThread(std::function<void()> work) {
    services().mainQueue.async(
        [self = shared_from_this(), work = std::move(work)] { self->performReportingFailure(work); });
}

const Services &Action::services() const noexcept {
    return context_->services;
}

void Action::performReportingFailure(const std::function<void()> &work) noexcept {
    try {
        work();
    } catch (...) {
        LoggerExtensions::error(LogSubject::actions, textOf(std::current_exception()));
        runReportingUncaught("Action", [this] { complete(false); });
    }
}

std::string_view typeOf(const ActionItem &item) {
    return rawString(
        std::visit([](const auto &action) { return std::remove_cvref_t<decltype(action)>::typeIdentifier; },
                   item.value));
}

void Action::complete(bool success) {
    // What the block holds may hold the action in its turn.
    if (const auto block = std::exchange(successCompletionBlock_, nullptr)) {
        block(success);
    }
}

} // namespace velmar
