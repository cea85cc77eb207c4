#include <Actions/Action.h>
#include <Actions/ActionDispatcher.h>
#include <Configuration/ActionSetItem.h>
#include <Dispatch/DispatchQueue.h>
#include <Dispatch/ThreadSafe.h>
#include <Variables/ConditionEvaluator.h>

#include <Support/RecordedLog.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <deque>
#include <future>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace velmar {
namespace {

using ExecutionType = ActionItems::ExecutionType;
using testing::ElementsAre;
using namespace std::chrono_literals;

using Clock = std::chrono::steady_clock;

/// Outcome of a fake action; the message of its item is this character.
enum Outcome : char {
    succeeds = 's',
    fails = 'f',
    succeedsLater = 'S', ///< On another thread.
    failsLater = 'F',
    isSkipped = '-', ///< As if its condition failed: never completes.
    byHand = 'h',    ///< Completed by the test.
};

/// A set of fake actions that records its runs.
class SetRun {
public:
    explicit SetRun(std::string_view outcomes, ExecutionType type, bool continueAfterFailure = false,
                    std::optional<Expression> condition = std::nullopt) {
        std::vector<ActionItem> actions;
        for (const char outcome : outcomes) {
            ActionItem::Log log;
            log._message.set(std::string(1, outcome));
            actions.push_back({std::move(log)});
        }
        auto item = std::make_shared<ActionSetItemProtocol>();
        item->_type.set(type);
        item->_actions.set(std::move(actions));
        item->_continueAfterFailure.set(continueAfterFailure);
        item->_condition.set(std::move(condition));
        set_.item = std::move(item);
    }

    ~SetRun() {
        // Breaks the reference cycle between the actions and the notes.
        static_cast<void>(notes_->mutate([](Notes &held) { return std::exchange(held.waiting, {}); }));
    }
    SetRun(const SetRun &) = delete;
    SetRun &operator=(const SetRun &) = delete;

    void start() {
        auto over = std::make_shared<std::promise<void>>();
        over_ = over->get_future().share();
        const std::shared_ptr<void> alive(nullptr, [over = std::move(over)](void *) { over->set_value(); });
        dispatcher_->dispatch(
            set_, [notes = notes_, alive] { notes->mutate([](Notes &held) { ++held.completions; }); });
    }

    /// Waits until only actions completed by the test are pending. Returns the outcomes of the started
    /// actions, in order, and a "." for each call of the handler.
    std::string settled() {
        EXPECT_TRUE(DispatchQueue::global().waitUntilIdle(20s));
        // The handler is destroyed once it was called or can't be called any more.
        if (notes_->withValue([](const Notes &held) { return held.waiting.empty(); })) {
            EXPECT_EQ(over_.wait_for(20s), std::future_status::ready);
        }
        const Notes notes = notes_->value();
        return notes.started + std::string(notes.completions, '.');
    }

    /// Completes the action that has waited longest.
    void finish(bool success) {
        const auto action = notes_->mutate([](Notes &held) {
            auto first = std::move(held.waiting.front());
            held.waiting.pop_front();
            return first;
        });
        action->successCompletionBlock()(success);
    }

private:
    struct Notes {
        std::string started;
        std::size_t completions = 0;
        std::deque<std::shared_ptr<Dispatchable>> waiting;
    };
    using SharedNotes = std::shared_ptr<ThreadSafe<Notes>>;

    class Fake final : public Action {
    public:
        Fake(std::shared_ptr<const ActionItem> item, SharedNotes notes)
            : Action(std::move(item), nullptr), notes_(std::move(notes)) {}

    private:
        void perform() override {
            const char outcome = std::get<ActionItem::Log>(item().value)._message.rawValue().front();
            notes_->mutate([&](Notes &held) {
                held.started += outcome;
                if (outcome == byHand) {
                    held.waiting.push_back(keepingAlive(this));
                }
            });
            if (outcome == succeeds || outcome == fails) {
                complete(outcome == succeeds);
            } else if (outcome == succeedsLater || outcome == failsLater) {
                DispatchQueue::global().async(
                    [self = keepingAlive(this), outcome] { self->complete(outcome == succeedsLater); });
            }
        }

        SharedNotes notes_;
    };

    SharedNotes notes_ = std::make_shared<ThreadSafe<Notes>>(Notes(), "notes");
    std::shared_future<void> over_; // Ready once the handler of the last start is destroyed.
    ActionSet set_;
    std::shared_ptr<ActionDispatcher> dispatcher_ =
        std::make_shared<ActionDispatcher>([notes = notes_](std::shared_ptr<const ActionItem> item) {
            return std::make_shared<Fake>(std::move(item), notes);
        });
};

/// Returns the expected record of a set.
std::string expected(std::string_view outcomes, ExecutionType type, bool continueAfterFailure) {
    if (type == ExecutionType::parallel) {
        return std::string(outcomes) + (outcomes.find(isSkipped) != outcomes.npos ? "" : ".");
    }
    const auto stops = [continueAfterFailure](char outcome) {
        return outcome == isSkipped || ((outcome == fails || outcome == failsLater) && !continueAfterFailure);
    };
    const auto stop = std::ranges::find_if(outcomes, stops);
    if (stop != outcomes.end() && (*stop == isSkipped || stop + 1 != outcomes.end())) {
        return {outcomes.begin(), stop + 1};
    }
    return std::string(outcomes) + (outcomes.empty() ? "" : ".");
}

TEST(ActionDispatcher, FollowsTheRulesInTenThousandSetsAtATime) {
    struct Case {
        std::string outcomes;
        ExecutionType type;
        bool continueAfterFailure;
        std::string result;
    };
    std::vector<Case> cases = {
        {"", ExecutionType::parallel, false, "."},       {"sfS", ExecutionType::parallel, false, "sfS."},
        {"s-F", ExecutionType::parallel, true, "s-F"},   {"", ExecutionType::chained, true, ""},
        {"sSs", ExecutionType::chained, false, "sSs."},  {"sFs", ExecutionType::chained, false, "sF"},
        {"sFfs", ExecutionType::chained, true, "sFfs."}, {"sf", ExecutionType::chained, false, "sf."},
        {"s-s", ExecutionType::chained, true, "s-"},     {"s-", ExecutionType::chained, true, "s-"},
    };
    std::mt19937 random(20); // NOLINT(*-msc51-cpp): the same sets in every run.
    while (cases.size() < 10'000) {
        std::string outcomes(random() % 9, succeeds);
        for (char &outcome : outcomes) {
            outcome = std::string_view("sssSSSffFF-")[random() % 11];
        }
        const auto type = random() % 2 == 0 ? ExecutionType::parallel : ExecutionType::chained;
        const bool continueAfterFailure = random() % 2 == 0;
        cases.push_back(
            {outcomes, type, continueAfterFailure, expected(outcomes, type, continueAfterFailure)});
    }
    std::deque<SetRun> runs;
    for (const auto &[outcomes, type, continueAfterFailure, result] : cases) {
        runs.emplace_back(outcomes, type, continueAfterFailure).start();
    }
    for (std::size_t i = 0; i < runs.size(); ++i) {
        ASSERT_EQ(runs[i].settled(), cases[i].result) << cases[i].outcomes;
    }
}

TEST(ActionDispatcher, LogsTheNumberOfActionsBeforeTheyHaveEnded) {
    const RecordedLog log;
    SetRun run("hs", ExecutionType::parallel);
    run.start();
    for (const auto end = Clock::now() + 20s; log.lines().empty() && Clock::now() < end;) {
        std::this_thread::yield();
    }
    EXPECT_THAT(log.lines(), ElementsAre("debug: 2 action(s) executed!"));
    run.finish(false);
    EXPECT_EQ(run.settled(), "hs.");
}

TEST(ActionDispatcher, RunsASetOnlyIfItsConditionHolds) {
    const auto store = std::make_shared<ContentManager>();
    store->updateVariable("NAME", "Ann", false);
    const Shared<ConditionEvaluator>::Scope evaluator(
        std::make_shared<ConditionEvaluator>(ConditionEvaluator::NamedConditions(), store));
    for (const auto type : {ExecutionType::parallel, ExecutionType::chained}) {
        for (const auto &[condition, result, errors] :
             {std::tuple("NAME == \"Ann\"", "s.", 0), {"NAME == \"Bo\"", "", 0}, {"MISSING == 1", "", 1}}) {
            const RecordedLog log;
            SetRun run("s", type, true, Expression(condition));
            run.start();
            EXPECT_EQ(run.settled(), result) << condition;
            EXPECT_THAT(log.lines(), testing::Contains(testing::StartsWith("error: ")).Times(errors));
        }
    }
}

TEST(ActionDispatcher, LetsTwoRunsOfAChainShareWhatRemains) {
    SetRun run("hhh", ExecutionType::chained);
    run.start();
    EXPECT_EQ(run.settled(), "h");
    run.start();
    EXPECT_EQ(run.settled(), "hh");
    run.finish(true); // Completes the first run's action, which starts the second run's second action.
    run.finish(true);
    EXPECT_EQ(run.settled(), "hhhh");
    run.finish(false);
    EXPECT_EQ(run.settled(), "hhhh.");
}

TEST(ActionDispatcher, RunsLongSetsWithoutDeepStacks) {
    const std::string outcomes(10'000, succeeds);
    for (const auto type : {ExecutionType::parallel, ExecutionType::chained}) {
        SetRun run(outcomes, type);
        run.start();
        EXPECT_EQ(run.settled(), outcomes + ".");
    }
}

} // namespace
} // namespace velmar
