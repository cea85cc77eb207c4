#include <Testing/TestMainQueue.h>
#include <Testing/TestTimerScheduler.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
#include <vector>

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(TestTimerScheduler, FiresWhatIsDueInTheOrderOfTime) {
    TestTimerScheduler scheduler;
    std::vector<std::pair<char, std::chrono::milliseconds>> fired;
    const auto note = [&](char name) { return [&, name] { fired.emplace_back(name, scheduler.now()); }; };
    const auto a = scheduler.repeating(3s, note('a'));
    const auto b = scheduler.once(5s, note('b'));
    const auto c = scheduler.repeating(5s, note('c'));
    scheduler.advance(2999ms);
    EXPECT_TRUE(fired.empty());
    scheduler.advance(3001ms);
    EXPECT_THAT(fired, ElementsAre(std::pair('a', 3000ms), std::pair('b', 5000ms), std::pair('c', 5000ms),
                                   std::pair('a', 6000ms)));
    EXPECT_EQ(scheduler.runningTimers(), 2U);
}

TEST(TestTimerScheduler, LetsFunctionsStopAndMakeTimers) {
    TestTimerScheduler scheduler;
    int fired = 0;
    std::unique_ptr<Timer> second;
    std::unique_ptr<Timer> first = scheduler.repeating(1s, [&] {
        first.reset();
        second = scheduler.once(1s, [&] { ++fired; });
    });
    scheduler.advance(2s);
    EXPECT_EQ(fired, 1);
    EXPECT_EQ(scheduler.runningTimers(), 0U);
    second->fire();
    EXPECT_EQ(fired, 2);
}

TEST(TestMainQueue, RunsWhatWasPostedFromAnyThreadOnItsOwn) {
    TestMainQueue queue;
    std::vector<int> order;
    queue.async([&] {
        order.push_back(1);
        queue.async([&] { order.push_back(3); });
    });
    queue.async([&] { order.push_back(2); });
    EXPECT_TRUE(order.empty());
    EXPECT_EQ(queue.runUntilEmpty(), 3U);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));

    bool wasCurrent = false;
    std::thread poster([&] {
        EXPECT_FALSE(queue.isCurrent());
        queue.async([&] { wasCurrent = queue.isCurrent(); });
    });
    EXPECT_TRUE(queue.runUntil([&] { return wasCurrent; }));
    poster.join();
    EXPECT_FALSE(queue.runUntil([] { return false; }, 1ms));
}

} // namespace
} // namespace velmar
