#include <Configuration/Configuration.h>
#include <Managers/AppTerminationService.h>

#include <Testing/TestMainQueue.h>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace velmar {
namespace {

class Dispatcher final : public ActionDispatcherProtocol {
public:
    void dispatch(const ActionSet & /*set*/, std::function<void()> completionHandler) override {
        handlers.push_back(std::move(completionHandler));
    }
    std::vector<std::function<void()>> handlers;
};

std::vector<TriggeredActionSetItem> setsOf(std::vector<ActionTrigger> triggers) {
    std::vector<TriggeredActionSetItem> sets;
    for (ActionTrigger &trigger : triggers) {
        sets.emplace_back()._triggers.set({std::move(trigger)});
    }
    return sets;
}

TEST(AppTerminationService, EndsTheApplicationWhenEverySetOfTheTerminationHasRun) {
    const ActionTrigger termination{ActionTrigger::Termination()};
    TestMainQueue mainQueue;
    const auto dispatcher = std::make_shared<Dispatcher>();
    int terminations = 0;
    AppTerminationService service(
        mainQueue, [&] { ++terminations; }, dispatcher,
        Config<std::vector<TriggeredActionSetItem>>(
            [](const Configuration &c) -> decltype(auto) { return c._actionSets(); },
            setsOf({termination, {ActionTrigger::Launch()}, termination})));
    service.terminate();
    ASSERT_EQ(dispatcher->handlers.size(), 2U);
    dispatcher->handlers[1]();
    EXPECT_FALSE(mainQueue.runUntil([&] { return terminations > 0; }, std::chrono::milliseconds(20)));
    dispatcher->handlers[0]();
    EXPECT_TRUE(mainQueue.runUntil([&] { return terminations > 0; }));
    EXPECT_EQ(terminations, 1);
}

} // namespace
} // namespace velmar
