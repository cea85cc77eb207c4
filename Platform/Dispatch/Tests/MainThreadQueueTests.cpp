#include <Dispatch/MainThreadQueue.h>
#include <Dispatch/UncaughtHandler.h>

#include <gtest/gtest.h>

#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using namespace std::chrono_literals;

TEST(MainThreadQueue, RunsFunctionsOfAllThreadsOnItsOwnInTheirOrder) {
    MainThreadQueue queue;
    constexpr int posters = 4;
    constexpr int each = 2000;
    std::vector<std::vector<int>> seen(posters); // Written only by the loop, without a lock.
    bool wasAlwaysCurrent = true;
    std::thread starter([&] {
        std::vector<std::thread> threads;
        for (int poster = 0; poster < posters; ++poster) {
            threads.emplace_back([&, poster] {
                for (int number = 0; number < each; ++number) {
                    queue.async([&, poster, number] {
                        wasAlwaysCurrent = wasAlwaysCurrent && queue.isCurrent();
                        seen[static_cast<std::size_t>(poster)].push_back(number);
                    });
                }
            });
        }
        for (auto &thread : threads) {
            thread.join();
        }
        EXPECT_FALSE(queue.isCurrent());
        queue.stop();
    });
    queue.run();
    starter.join();
    std::vector<int> expected(each);
    std::iota(expected.begin(), expected.end(), 0);
    for (const auto &numbers : seen) {
        EXPECT_EQ(numbers, expected);
    }
    EXPECT_TRUE(wasAlwaysCurrent);
}

TEST(MainThreadQueue, StopEndsOneRunWhenWhatWasPostedBeforeHasRun) {
    struct Case {
        const char *name;
        void (*arrange)(MainThreadQueue &queue, std::string &order);
        const char *orderAfterRun;
        const char *orderAfterRest;
    };
    const Case cases[] = {
        {"before the run",
         [](auto &queue, auto &order) {
             queue.async([&] { order += 'a'; });
             queue.stop();
             queue.async([&] { order += 'b'; });
         },
         "a", "ab"},
        {"in a function, behind others",
         [](auto &queue, auto &order) {
             queue.async([&] {
                 order += 'a';
                 queue.stop();
                 queue.async([&] { order += 'c'; });
             });
             queue.async([&] { order += 'b'; });
         },
         "ab", "abc"},
        {"taken by a call that empties the queue",
         [](auto &queue, auto &order) {
             queue.stop();
             queue.runUntilEmpty();
             queue.async([&] { order += 'a'; });
         },
         "", "a"},
        {"in a run inside a function",
         [](auto &queue, auto &order) {
             queue.async([&] {
                 order += '(';
                 queue.run();
                 order += ')';
                 queue.stop();
             });
             queue.async([&] { order += 'a'; });
             queue.stop();
             queue.async([&] { order += 'b'; });
         },
         "(a)b", "(a)b"},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.name);
        MainThreadQueue queue;
        std::string order;
        each.arrange(queue, order);
        queue.run();
        EXPECT_EQ(order, each.orderAfterRun);
        queue.runUntilEmpty();
        EXPECT_EQ(order, each.orderAfterRest);
    }
}

TEST(MainThreadQueue, RunReportsWhatAFunctionThrowsAndTheOthersHandItOn) {
    std::vector<std::string> reports;
    setUncaughtHandler([&](std::string_view label, const std::exception_ptr &exception) {
        reports.push_back(std::string(label) + ": " + std::string(textOf(exception)));
    });
    MainThreadQueue queue;
    int ran = 0;
    const auto post = [&] {
        queue.async([] { throw std::runtime_error("out of paper"); });
        queue.async([&] { ++ran; });
    };
    post();
    EXPECT_THROW(queue.runUntilEmpty(), std::runtime_error);
    EXPECT_EQ(ran, 0);
    EXPECT_EQ(queue.runUntilEmpty(), 1U);
    post();
    EXPECT_THROW(static_cast<void>(queue.runUntil([] { return false; })), std::runtime_error);
    EXPECT_TRUE(queue.runUntil([&] { return ran == 2; }));
    EXPECT_TRUE(reports.empty());
    post();
    queue.stop();
    queue.run();
    setUncaughtHandler({});
    EXPECT_EQ(ran, 3);
    EXPECT_EQ(reports, std::vector<std::string>{"MainQueue: out of paper"});
}

TEST(MainThreadQueue, RunsUntilAConditionHoldsOrTheTimeIsUp) {
    MainThreadQueue queue;
    int ran = 0;
    const auto count = [&] { ++ran; };
    queue.async(count);
    EXPECT_TRUE(queue.runUntil([] { return true; }));
    EXPECT_EQ(ran, 0) << "the condition comes first";
    queue.async(count);
    EXPECT_TRUE(queue.runUntil([&] { return ran == 1; }));
    EXPECT_FALSE(queue.runUntil([&] { return ran == 3; }, 1ms));

    std::function<void()> again = [&] { queue.async(again); };
    again();
    EXPECT_FALSE(queue.runUntil([] { return false; }, 1ms)) << "functions without end don't extend it";
    again = [] {};

    std::thread poster([&] { queue.async(count); });
    EXPECT_TRUE(queue.runUntil([&] { return ran == 3; }, 30s));
    poster.join();
}

TEST(MainThreadQueue, IsRunByItsOwnThreadOnly) {
    MainThreadQueue queue;
    queue.stop();
    std::thread([&] {
        EXPECT_THROW(queue.run(), std::logic_error);
        EXPECT_THROW(queue.runUntilEmpty(), std::logic_error);
        EXPECT_THROW(static_cast<void>(queue.runUntil([] { return true; })), std::logic_error);
    }).join();
}

TEST(MainThreadQueue, LetsGoOfWhatNeverRanAlsoIfThatPosts) {
    struct Poster {
        MainThreadQueue &queue;
        std::shared_ptr<int> held;
        ~Poster() {
            queue.async([last = held] { ADD_FAILURE() << "ran"; });
        }
    };
    const auto held = std::make_shared<int>(1);
    {
        MainThreadQueue queue;
        queue.async([poster = std::shared_ptr<Poster>(new Poster{queue, held})] { ADD_FAILURE() << "ran"; });
    }
    EXPECT_EQ(held.use_count(), 1);
}

} // namespace
} // namespace velmar
