#include <Actions/ActionDispatcher.h>

#include <Base/Domain.h>
#include <Base/LoggerExtensions.h>
#include <Configuration/ActionItem.h>
#include <Dispatch/DispatchQueue.h>
#include <Dispatch/UncaughtHandler.h>
#include <Variables/Evaluatable.h>

#include <fmt/format.h>

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace velmar {

namespace {

constexpr std::string_view label = "ActionDispatcher";

bool mayRun(const ActionSetItemProtocol &set) {
    const auto &condition = set._condition.rawValue();
    try {
        return !condition || evaluate(*condition);
    } catch (const std::exception &error) {
        LoggerExtensions::error(LogSubject::actions, error.what());
        return false;
    }
}

// Runs a step of a chain, after the current step if one is running on this thread. Nested steps of actions
// that end synchronously would overflow the stack.
void inTurn(std::function<void()> step) {
    using Steps = std::deque<std::function<void()>>;
    static thread_local Steps *running = nullptr;
    if (running != nullptr) {
        running->push_back(std::move(step));
        return;
    }
    Steps steps;
    steps.push_back(std::move(step));
    for (running = &steps; !steps.empty(); steps.pop_front()) {
        runReportingUncaught(label, std::exchange(steps.front(), nullptr));
    }
    running = nullptr;
}

} // namespace

struct ActionDispatcher::Chain {
    std::weak_ptr<ActionDispatcher> dispatcher;
    UUID id;
    bool continueAfterFailure;
    std::function<void()> completionHandler;
};

ActionDispatcher::ActionDispatcher(MakeDispatchable makeDispatchable)
    : makeDispatchable_(std::move(makeDispatchable)),
      _chainedActions({}, std::string(Domain::bundleIdentifier) + ".ActionDispatcher.chainedActions") {}

void ActionDispatcher::dispatch(const ActionSet &set, std::function<void()> completionHandler) {
    if (!mayRun(*set.item)) {
        return;
    }
    Actions actions;
    for (const ActionItem &item : set.item->_actions()) {
        actions.push_back(makeDispatchable_(std::shared_ptr<const ActionItem>(set.item, &item)));
    }
    if (set.item->_type() == ActionItems::ExecutionType::parallel) {
        DispatchQueue::global().async([self = shared_from_this(), actions = std::move(actions),
                                       handler = std::move(completionHandler)]() mutable {
            self->runParallel(actions, std::move(handler));
        });
        return;
    }
    auto chain = std::make_shared<const Chain>(
        Chain{weak_from_this(), set.id, set.item->_continueAfterFailure(), std::move(completionHandler)});
    DispatchQueue::global().async(
        [self = shared_from_this(), actions = std::move(actions), chain = std::move(chain)]() mutable {
            self->runChained(std::move(actions), chain);
        });
}

void ActionDispatcher::runParallel(const Actions &actions, std::function<void()> completionHandler) const {
    const DispatchGroup group;
    for (const auto &action : actions) {
        action->setSuccessCompletionBlock([group](bool) { group.leave(); });
        group.enter();
        action->dispatch();
    }
    const DispatchQueue queue{std::string(label)};
    queue.async([count = actions.size(), group, queue, handler = std::move(completionHandler)]() mutable {
        dispatchParallel(count, group, queue, std::move(handler));
    });
}

void ActionDispatcher::dispatchParallel(std::size_t actionsCount, const DispatchGroup &actions,
                                        const DispatchQueue &queue, std::function<void()> completionHandler) {
    Logger::debug([&] { return fmt::format("{} action(s) executed!", actionsCount); });
    if (completionHandler) {
        actions.notify(queue, std::move(completionHandler));
    }
}

void ActionDispatcher::runChained(Actions actions, const std::shared_ptr<const Chain> &chain) {
    // Swapped: `actions` destroys the rest of an earlier run after the lock is released.
    _chainedActions.mutate([&](auto &chains) { chains[chain->id].swap(actions); });
    if (const auto first = takeFirstAction(chain->id)) {
        inTurn([first, chain] { start(*first, chain); });
    }
}

// Only the running action owns the chain: pending actions may remain long after an early end.
void ActionDispatcher::start(Dispatchable &action, const std::shared_ptr<const Chain> &chain) {
    action.setSuccessCompletionBlock([chain](bool success) {
        inTurn([chain, success] {
            if (const auto dispatcher = chain->dispatcher.lock()) {
                dispatcher->continueChain(chain, success);
            }
        });
    });
    action.dispatch();
}

void ActionDispatcher::continueChain(const std::shared_ptr<const Chain> &chain, bool success) {
    const auto next = takeFirstAction(chain->id);
    if (!next) {
        if (chain->completionHandler) {
            chain->completionHandler();
        }
    } else if (success || chain->continueAfterFailure) {
        start(*next, chain);
    }
}

std::shared_ptr<Dispatchable> ActionDispatcher::takeFirstAction(const UUID &id) {
    return _chainedActions.mutate([&id](auto &chains) -> std::shared_ptr<Dispatchable> {
        const auto chain = chains.find(id);
        if (chain == chains.end() || chain->second.empty()) {
            return nullptr;
        }
        auto first = std::move(chain->second.front());
        chain->second.pop_front();
        if (chain->second.empty()) {
            chains.erase(chain);
        }
        return first;
    });
}

} // namespace velmar
