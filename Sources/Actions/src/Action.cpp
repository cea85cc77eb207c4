#include <Actions/Action.h>

#include <Actions/ActionContext.h>
#include <Base/FactoryTable.h>
#include <Base/LoggerExtensions.h>
#include <Base/Services.h>
#include <Dispatch/MainQueue.h>
#include <Dispatch/UncaughtHandler.h>
#include <Variables/Evaluatable.h>

#include <exception>

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
    try {
        perform();
    } catch (...) {
        fail(std::current_exception());
    }
}

void Action::performOnMainThread(std::function<void()> work) {
    services().mainQueue.async([self = shared_from_this(), work = std::move(work)] {
        try {
            work();
        } catch (...) {
            self->fail(std::current_exception());
        }
    });
}

const Services &Action::services() const noexcept {
    return context_->services;
}

void Action::fail(const std::exception_ptr &error) noexcept {
    LoggerExtensions::error(LogSubject::actions, textOf(error));
    runReportingUncaught("Action", [this] { complete(false); });
}

std::string_view typeOf(const ActionItem &item) {
    return rawString(typeIdentifierOf(item));
}

void Action::complete(bool success) {
    // Cleared before the call: the block may own the action (reference cycle).
    if (const auto block = std::exchange(successCompletionBlock_, nullptr)) {
        block(success);
    }
}

} // namespace velmar
