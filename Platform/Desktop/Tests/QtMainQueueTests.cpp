#include <Desktop/QtMainQueue.h>
#include <Desktop/QtTimerScheduler.h>
#include <Dispatch/DispatchQueue.h>
#include <Dispatch/UncaughtHandler.h>
#include <Support/QtTest.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using namespace std::chrono_literals;

class MainQueue : public QtTest<> {
protected:
    MainQueue() {
        setUncaughtHandler([this](std::string_view, std::exception_ptr exception) {
            uncaught.emplace_back(textOf(exception));
        });
    }
    ~MainQueue() override { setUncaughtHandler({}); }

    std::vector<std::string> uncaught;
};

TEST_F(MainQueue, RunsFunctionsOfAllThreadsOnItsOwnInTheirOrder) {
    QtMainQueue queue;
    QEventLoop loop;
    std::vector<int> numbers;
    bool wasAlwaysMain = true;
    std::thread poster([&] {
        for (int number = 0; number < 1000; ++number) {
            queue.async([&, number] {
                wasAlwaysMain = wasAlwaysMain && queue.isCurrent();
                numbers.push_back(number);
            });
        }
        EXPECT_FALSE(queue.isCurrent());
        queue.async([&] { loop.quit(); });
    });
    loop.exec();
    poster.join();
    ASSERT_EQ(numbers.size(), 1000U);
    EXPECT_TRUE(std::ranges::is_sorted(numbers));
    EXPECT_TRUE(wasAlwaysMain);
}

TEST_F(MainQueue, GoesOnInTheLoopOfAFunctionInOrderWhateverIsThrown) {
    QtMainQueue queue;
    QEventLoop loop;
    std::string order;
    queue.async([&] {
        order += 'a';
        QEventLoop nested;
        queue.async([&] {
            order += 'd';
            nested.quit();
        });
        nested.exec();
        order += 'e';
        loop.quit();
    });
    queue.async([&] { order += 'b'; });
    queue.async([&] {
        order += 'c';
        throw std::runtime_error("broken");
    });
    loop.exec();
    EXPECT_EQ(order, "abcde");
    EXPECT_EQ(uncaught, std::vector<std::string>{"broken"});
}

TEST_F(MainQueue, WakesTheLoopOfAFunctionForWhatWaitedBehindIt) {
    QtMainQueue queue;
    QEventLoop nested;
    queue.async([&] { nested.exec(); });
    queue.async([&] { nested.quit(); });
    QCoreApplication::processEvents();
}

TEST_F(MainQueue, TimersTickFireAndMayEndThemselves) {
    QtMainQueue queue;
    QtTimerScheduler scheduler;
    QEventLoop loop;
    int repeated = 0;
    std::unique_ptr<Timer> timer;
    timer = scheduler.repeating(queue, 1ms, [&] {
        if (++repeated == 3) {
            timer.reset();
            loop.quit();
        }
    });
    timer->fire();
    EXPECT_EQ(repeated, 0) << "posted, as at a tick";
    loop.exec();
    EXPECT_EQ(repeated, 3);

    const auto failing = scheduler.once(queue, 1ms, [&] {
        loop.quit();
        throw std::runtime_error("late");
    });
    loop.exec();
    EXPECT_EQ(uncaught, std::vector<std::string>{"late"});
}

TEST_F(MainQueue, TimersOfAnotherQueueAreMadeAndDestroyedThere) {
    QtMainQueue mainQueue;
    QtTimerScheduler scheduler;
    QEventLoop loop;
    const DispatchQueue queue("timers");
    int repeated = 0; // The queue's.
    std::unique_ptr<Timer> timer;
    queue.async([&] {
        timer = scheduler.repeating(queue, 1ms, [&] {
            EXPECT_FALSE(mainQueue.isCurrent());
            if (++repeated == 3) {
                timer.reset();
                mainQueue.async([&] { loop.quit(); });
            }
        });
    });
    loop.exec();
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    EXPECT_EQ(repeated, 3);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace
} // namespace velmar
