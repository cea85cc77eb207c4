#include <Foundation/NotificationCenter.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

namespace velmar {
namespace {

using testing::ElementsAre;

TEST(NotificationCenter, CallsTheNamesObserversInTheOrderOfRegistration) {
    NotificationCenter centre;
    std::vector<int> called;
    const auto first = centre.addObserver("next", [&] { called.push_back(1); });
    const auto other = centre.addObserver("previous", [&] { called.push_back(2); });
    {
        const auto ended = centre.addObserver("next", [&] { called.push_back(3); });
        const auto last = centre.addObserver("next", [&] { called.push_back(4); });
        centre.post("next");
        EXPECT_THAT(called, ElementsAre(1, 3, 4));
    }
    called.clear();
    centre.post("next");
    centre.post("unknown");
    EXPECT_THAT(called, ElementsAre(1));
}

TEST(NotificationCenter, LetsObserversPostAddAndRemove) {
    NotificationCenter centre;
    std::vector<int> called;
    std::vector<NotificationObserver> added;
    std::optional<NotificationObserver> itself;
    std::optional<NotificationObserver> later;
    itself = centre.addObserver("a", [&] {
        called.push_back(1);
        itself.reset();
        later.reset();
        added.push_back(centre.addObserver("a", [&] { called.push_back(3); }));
        centre.post("b");
    });
    later = centre.addObserver("a", [&] { called.push_back(2); });
    const auto inner = centre.addObserver("b", [&] { called.push_back(4); });
    centre.post("a");
    EXPECT_THAT(called, ElementsAre(1, 4));
    centre.post("a");
    EXPECT_THAT(called, ElementsAre(1, 4, 3));
}

TEST(NotificationCenter, CallsTheOthersWhenOneThrows) {
    NotificationCenter centre;
    std::vector<int> called;
    const auto first = centre.addObserver("a", [] { throw std::runtime_error("first"); });
    const auto second = centre.addObserver("a", [&] { called.push_back(2); });
    const auto third = centre.addObserver("a", [] { throw 3; });
    const auto fourth = centre.addObserver("a", [&] { called.push_back(4); });
    try {
        centre.post("a");
        ADD_FAILURE() << "nothing thrown";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "first");
    }
    EXPECT_THAT(called, ElementsAre(2, 4));
}

TEST(NotificationCenter, LetsObserversMoveAndOutliveIt) {
    int called = 0;
    NotificationObserver token;
    {
        NotificationCenter centre;
        token = centre.addObserver("a", [&] { ++called; });
        NotificationObserver moved = std::move(token);
        centre.post("a");
        token = std::move(moved);
        token = centre.addObserver("a", [&] { called += 10; }); // ends the previous registration
        auto &itself = token;
        token = std::move(itself);
        centre.post("a");
    }
    EXPECT_EQ(called, 11);
}

TEST(NotificationCenter, ReleasesAnObserverWhoseEndCallsBack) {
    NotificationCenter centre;
    struct Poster {
        NotificationCenter &centre;
        ~Poster() { centre.post("gone"); }
    };
    bool isTold = false;
    const auto gone = centre.addObserver("gone", [&] { isTold = true; });
    {
        const auto token = centre.addObserver("a", [poster = std::shared_ptr<Poster>(new Poster{centre})] {});
    }
    EXPECT_TRUE(isTold);
}

TEST(NotificationCenter, IsUsedByManyThreads) {
    NotificationCenter centre;
    std::atomic<int> called = 0;
    const auto steady = centre.addObserver("a", [&] { ++called; });
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&] {
            for (int round = 0; round < 500; ++round) {
                const auto own = centre.addObserver("a", [] {});
                centre.post("a");
            }
        });
    }
    for (auto &thread : threads) {
        thread.join();
    }
    EXPECT_EQ(called, 2000);
}

} // namespace
} // namespace velmar
