#include <Dispatch/DispatchTimerScheduler.h>
#include <Dispatch/MainThreadQueue.h>
#include <Dispatch/UncaughtHandler.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <future>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using namespace std::chrono_literals;

/// Runs its tests once for each kind of queue. They wait on the main queue, which the timer's function wakes.
class DispatchTimers : public testing::TestWithParam<const char *> {
protected:
    [[nodiscard]] AnyQueue queue() {
        const std::string kind = GetParam();
        if (kind == "main") {
            return main;
        }
        return kind == "serial" ? serial : DispatchQueue::global();
    }

    /// Returns a function that increments the count and wakes the main queue.
    [[nodiscard]] std::function<void()> counting(std::atomic<int> &count) {
        return [this, &count] {
            ++count;
            main.async([] {});
        };
    }

    /// Runs the main queue until the count is reached.
    [[nodiscard]] bool waitFor(const std::atomic<int> &count, int least) {
        return main.runUntil([&] { return count >= least; }, 30s);
    }

    /// Runs the pending functions of all queues.
    [[nodiscard]] bool settle() {
        const bool areIdle = serial.waitUntilIdle(30s) && DispatchQueue::global().waitUntilIdle(30s);
        main.runUntilEmpty();
        return areIdle;
    }

    /// Stops the timer and waits for its run, so that objects referenced by its function may be destroyed.
    [[nodiscard]] bool end(std::unique_ptr<Timer> &timer) {
        timer.reset();
        return settle();
    }

    /// Waits for several ticks of another timer, during which an unexpected tick would arrive.
    void letTicksPass() {
        std::atomic<int> ticks = 0;
        auto timer = scheduler.repeating(queue(), 1ms, counting(ticks));
        EXPECT_TRUE(waitFor(ticks, 5));
        EXPECT_TRUE(end(timer));
    }

    /// Runs the function on the queue. Returns after the function and the functions it posts have ended.
    void runOnQueue(const std::function<void()> &function) {
        std::atomic<int> ends = 0;
        queue().async([&, ended = counting(ends)] {
            function();
            ended();
        });
        EXPECT_TRUE(waitFor(ends, 1));
        EXPECT_TRUE(settle());
    }

    MainThreadQueue main;
    const DispatchQueue serial{"timers"};
    DispatchTimerScheduler scheduler;
};

class SerialDispatchTimers : public DispatchTimers {};
class PoolDispatchTimers : public DispatchTimers {};

const auto nameOfKind = [](const testing::TestParamInfo<const char *> &kind) {
    return std::string(kind.param);
};
INSTANTIATE_TEST_SUITE_P(Queues, DispatchTimers, testing::Values("main", "serial", "global"), nameOfKind);
INSTANTIATE_TEST_SUITE_P(Queues, SerialDispatchTimers, testing::Values("main", "serial"), nameOfKind);
INSTANTIATE_TEST_SUITE_P(Queues, PoolDispatchTimers, testing::Values("serial", "global"), nameOfKind);

TEST_P(DispatchTimers, TickOnTheirQueueOnceOrAgainAndAgain) {
    constexpr int any = 1'000'000;
    struct Case {
        const char *name;
        bool repeats;
        std::chrono::milliseconds time;
        int least, most;
    };
    const Case cases[] = {
        {"repeating", true, 2ms, 5, any},
        {"repeating without an interval", true, 0ms, 5, any},
        {"once", false, 2ms, 1, 1},
        {"once at once", false, 0ms, 1, 1},
        {"once in the past", false, -1h, 1, 1},
        {"repeating beyond all clocks", true, std::chrono::milliseconds::max(), 0, 0},
        {"once beyond all clocks", false, std::chrono::milliseconds::max(), 0, 0},
    };
    for (const Case &each : cases) {
        SCOPED_TRACE(each.name);
        std::atomic<int> count = 0;
        std::atomic<bool> wasAlwaysThere = true;
        const auto function = [&, isMain = queue().isCurrent(), counted = counting(count)] {
            if (main.isCurrent() != isMain) {
                wasAlwaysThere = false;
            }
            counted();
        };
        auto timer = each.repeats ? scheduler.repeating(queue(), each.time, function)
                                  : scheduler.once(queue(), each.time, function);
        EXPECT_TRUE(waitFor(count, each.least));
        letTicksPass();
        EXPECT_TRUE(end(timer));
        EXPECT_LE(count, each.most);
        EXPECT_TRUE(wasAlwaysThere);
    }
}

TEST_P(DispatchTimers, FireBesideTheirScheduleWhateverIsThrown) {
    std::mutex mutex;
    std::vector<std::string> reports; // Guarded by mutex.
    setUncaughtHandler([&](std::string_view label, const std::exception_ptr &exception) {
        const std::lock_guard lock(mutex);
        reports.push_back(std::string(label) + ": " + std::string(textOf(exception)));
    });
    std::atomic<int> count = 0;
    auto timer = scheduler.once(queue(), 1h, [counted = counting(count)] {
        counted();
        throw std::runtime_error("late");
    });
    timer->fire();
    std::thread([&] { timer->fire(); }).join();
    EXPECT_TRUE(waitFor(count, 2));
    EXPECT_TRUE(end(timer));
    setUncaughtHandler({});
    EXPECT_EQ(count, 2);
    EXPECT_EQ(reports, (std::vector<std::string>{"Timer: late", "Timer: late"}));
}

TEST_P(SerialDispatchTimers, MayEndThemselvesInTheirFunction) {
    for (const bool isFired : {false, true}) {
        std::atomic<int> count = 0;
        std::unique_ptr<Timer> timer;
        const auto held = std::make_shared<int>(1);
        // On the queue, so that the first run finds the timer.
        runOnQueue([&] {
            timer = scheduler.repeating(queue(), 1ms, [&, held, counted = counting(count)] {
                timer.reset();
                EXPECT_GT(held.use_count(), 1) << "the captures are there until the end of the run";
                counted();
            });
            if (isFired) {
                timer->fire();
                timer->fire(); // This run finds no timer.
            }
        });
        EXPECT_TRUE(waitFor(count, 1));
        letTicksPass();
        EXPECT_EQ(count, 1);
        EXPECT_EQ(held.use_count(), 1);
    }
}

TEST_P(SerialDispatchTimers, DestroyedOnTheirQueueRunNothingThatWaitsThere) {
    const auto held = std::make_shared<int>(1);
    runOnQueue([&] {
        auto timer = scheduler.repeating(queue(), 1h, [held] { ADD_FAILURE() << "ran"; });
        timer->fire();
        timer.reset();
        EXPECT_EQ(held.use_count(), 1);
    });
}

TEST_P(PoolDispatchTimers, DestroyedOnAnotherThreadLetTheRunThatIsUnderWayEnd) {
    std::promise<void> started;
    std::promise<void> release;
    std::atomic<int> count = 0;
    const auto held = std::make_shared<int>(1);
    auto timer = scheduler.repeating(queue(), 1ms, [&, held] {
        if (++count == 1) {
            started.set_value();
            release.get_future().wait();
        }
    });
    started.get_future().wait();
    timer.reset(); // Would deadlock if it waited.
    EXPECT_EQ(held.use_count(), 2);
    release.set_value();
    EXPECT_TRUE(settle());
    letTicksPass();
    EXPECT_EQ(count, 1);
    EXPECT_EQ(held.use_count(), 1);
}

struct CountingQueue final : MainThreadQueue {
    std::atomic<int> posts = 0;
    void async(std::function<void()> function) override {
        MainThreadQueue::async(std::move(function));
        ++posts;
        posts.notify_all();
    }
};

TEST(TimersOfALoop, LeaveOutTicksWhileOneWaitsOrRuns) {
    DispatchTimerScheduler scheduler;
    MainThreadQueue other;
    int ticks = 0;
    const auto clock = scheduler.repeating(other, 1ms, [&] { ++ticks; });
    const auto letTicksPass = [&] {
        EXPECT_TRUE(other.runUntil([&, end = ticks + 10] { return ticks >= end; }, 30s));
    };

    CountingQueue queue;
    int runs = 0;
    auto timer = scheduler.repeating(queue, 1ms, [&] {
        letTicksPass();
        EXPECT_EQ(queue.posts, ++runs) << "while one runs";
    });
    queue.posts.wait(0);
    letTicksPass();
    EXPECT_EQ(queue.posts, 1) << "while one waits";
    EXPECT_TRUE(queue.runUntil([&] { return runs == 1; }));

    queue.posts.wait(1);
    timer.reset();
    EXPECT_EQ(queue.runUntilEmpty(), 1U);
    EXPECT_EQ(runs, 1) << "a tick that waited when its timer was destroyed";
}

TEST(TimersOfALoop, LeaveTheirQueueAloneWhenTheyAreGone) {
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([] {
            DispatchTimerScheduler scheduler;
            for (int round = 0; round < 500; ++round) {
                std::optional<MainThreadQueue> queue(std::in_place);
                int runs = 0;
                const auto repeating = scheduler.repeating(*queue, 0ms, [&] { ++runs; });
                const auto once = scheduler.once(*queue, 0ms, [&] { ++runs; });
                if (round % 2 == 0) {
                    EXPECT_TRUE(queue->runUntil([&] { return runs > 0; }, 30s));
                }
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
}

TEST(TimersOfALoopDeathTest, MayOutliveTheShutdownOfThePoolWithoutTheirTicks) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            DispatchTimerScheduler scheduler;
            MainThreadQueue queue;
            int runs = 0;
            auto timer = scheduler.repeating(queue, 1ms, [&] { ++runs; });
            const bool hasTicked = queue.runUntil([&] { return runs > 2; }, 30s);
            const bool isShutDown = DispatchQueue::shutdown(30s);
            queue.runUntilEmpty();
            timer->fire();
            const bool isFired = queue.runUntilEmpty() == 1;
            timer.reset();
            auto late = scheduler.once(queue, 0ms, [] {});
            late.reset();
            std::exit(hasTicked && isShutDown && isFired ? 5 : 1);
        },
        testing::ExitedWithCode(5), "^$");
}

} // namespace
} // namespace velmar
