#include <Dispatch/DispatchQueue.h>
#include <Dispatch/UncaughtHandler.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <numeric>
#include <stdexcept>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using namespace std::chrono_literals;

TEST(DispatchQueue, RunsInOrderAndOneAtATimeForEachPoster) {
    const DispatchQueue queue("order");
    constexpr int posters = 4;
    constexpr int each = 2000;
    std::vector<std::vector<int>> seen(posters); // Written only on the queue, without a lock.
    std::vector<std::thread> threads;
    for (int poster = 0; poster < posters; ++poster) {
        threads.emplace_back([&, poster] {
            for (int number = 0; number < each; ++number) {
                queue.async(
                    [&, poster, number] { seen[static_cast<std::size_t>(poster)].push_back(number); });
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    std::vector<int> expected(each);
    std::iota(expected.begin(), expected.end(), 0);
    for (const auto &numbers : seen) {
        EXPECT_EQ(numbers, expected);
    }
}

TEST(DispatchQueue, RunsSeveralQueuesAndTheGlobalOneSideBySide) {
    const DispatchQueue first("first");
    const DispatchQueue second("second");
    const std::pair<DispatchQueue, DispatchQueue> pairs[] = {
        {first, second}, {DispatchQueue::global(), DispatchQueue::global()}};
    for (const auto &[one, other] : pairs) {
        std::promise<void> reached;
        std::atomic<bool> isMet = false;
        one.async([&] { isMet = reached.get_future().wait_for(30s) == std::future_status::ready; });
        other.async([&] { reached.set_value(); });
        ASSERT_TRUE(one.waitUntilIdle(30s));
        EXPECT_TRUE(isMet);
    }
}

TEST(DispatchQueue, WaitsForWhatWasPostedBeforeOnly) {
    const DispatchQueue queue("endless");
    std::atomic<bool> goesOn = true;
    std::function<void()> again = [&] {
        if (goesOn) {
            queue.async(again);
        }
    };
    queue.async(again);
    EXPECT_TRUE(queue.waitUntilIdle(30s));
    goesOn = false;
    while (!queue.waitUntilIdle(0ms)) {
        EXPECT_TRUE(queue.waitUntilIdle(30s));
    }
}

TEST(DispatchQueue, DoesNotWaitOnAThreadOfThePool) {
    const DispatchQueue queue("itself");
    std::atomic<bool> wasIdle = true;
    queue.async([&] { wasIdle = queue.waitUntilIdle(1h); });
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    EXPECT_FALSE(wasIdle);
}

TEST(DispatchQueue, RunsWhatWaitsWhenTheLastHandleGoes) {
    std::promise<void> release;
    std::promise<int> result;
    {
        const DispatchQueue queue("gone");
        queue.async([future = release.get_future().share()] { future.wait(); });
        queue.async([&] { result.set_value(7); });
        EXPECT_FALSE(queue.waitUntilIdle(1ms)) << "gives up at the time-out";
    }
    release.set_value();
    EXPECT_EQ(result.get_future().get(), 7);
}

TEST(DispatchQueue, ReportsWhatAFunctionThrowsAndGoesOn) {
    std::vector<std::string> reports;
    setUncaughtHandler([&](std::string_view label, const std::exception_ptr &exception) {
        reports.push_back(std::string(label) + ": " + std::string(textOf(exception)));
        throw std::runtime_error("from the handler"); // Is dropped.
    });
    const DispatchQueue queue("faulty");
    queue.async([] { throw std::runtime_error("out of paper"); });
    queue.async([] { throw 3; });
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    setUncaughtHandler({});
    EXPECT_EQ(reports, (std::vector<std::string>{"faulty: out of paper",
                                                 "faulty: an object that is no std::exception"}));
}

// Tests of process exit run in child processes; "threadsafe" starts them from the beginning of the program.
class DispatchQueueDeathTest : public testing::Test {
protected:
    void SetUp() override { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

TEST_F(DispatchQueueDeathTest, ShutdownIsBoundedAlsoWhereAFunctionThatNeverRanHangs) {
    EXPECT_EXIT(
        {
            // Dropped by a pool thread: a strand takes all pending functions at once, so this one is queued
            // directly behind the running one.
            struct Hanging {
                ~Hanging() {
                    std::fputs("dropped", stderr);
                    std::promise<void>().get_future().wait_for(1h);
                }
            };
            const DispatchQueue queue("dropping");
            std::promise<void> posted;
            std::promise<void> started;
            std::promise<void> release;
            queue.async([&] { posted.get_future().wait(); });
            queue.async([&] {
                started.set_value();
                release.get_future().wait();
            });
            queue.async([held = std::make_shared<Hanging>()] {});
            posted.set_value();
            started.get_future().wait();
            static_cast<void>(DispatchQueue::shutdown(0ms));
            release.set_value();
            std::_Exit(DispatchQueue::shutdown(200ms) ? 1 : 7);
        },
        testing::ExitedWithCode(7), "^dropped$");
}

TEST_F(DispatchQueueDeathTest, ShutdownJoinsAnIdlePoolAndStartsNone) {
    EXPECT_EXIT(
        {
            const bool beforeUse = DispatchQueue::shutdown(0ms);
            DispatchQueue("late").async([] { std::fputs("never", stderr); });
            std::exit(beforeUse && DispatchQueue::shutdown(30s) ? 5 : 1);
        },
        testing::ExitedWithCode(5), "^$");
}

} // namespace
} // namespace velmar
