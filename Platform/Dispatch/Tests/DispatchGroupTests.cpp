#include <Dispatch/DispatchGroup.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <vector>

#include <unistd.h>

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

TEST(DispatchGroup, TellsWhenEverythingHasLeft) {
    const DispatchQueue queue("group");
    const DispatchGroup group;
    std::vector<int> told; // Written on the queue, read after waiting for it.
    group.enter();
    group.enter();
    group.notify(queue, [&] { told.push_back(1); });
    group.notify(queue, [&] { told.push_back(2); });
    group.leave();
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    EXPECT_TRUE(told.empty());
    group.leave();
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    EXPECT_THAT(told, ElementsAre(1, 2));

    group.notify(queue, [&] { told.push_back(3); }); // No operation is in progress.
    group.enter();
    group.leave(); // Must not notify a second time.
    ASSERT_TRUE(queue.waitUntilIdle(30s));
    EXPECT_THAT(told, ElementsAre(1, 2, 3));
}

TEST(DispatchGroup, ForgetsWhatItWasToTellWhenItGoesAndRefusesOneLeaveTooMany) {
    const auto held = std::make_shared<int>(1);
    {
        const DispatchGroup group;
        group.enter();
        group.notify(DispatchQueue::global(), [held] { ADD_FAILURE() << "told"; });
    }
    EXPECT_EQ(held.use_count(), 1);
    EXPECT_THROW(DispatchGroup().leave(), std::logic_error);
}

TEST(DispatchGroupDeathTest, LetsGoOfRefusedFunctionsOutsideOfItsLock) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            alarm(10);      // Ends the process instead of a deadlock.
            struct Caller { // The destructor calls the group.
                DispatchGroup group;
                ~Caller() {
                    group.enter();
                    std::fputs("back ", stderr);
                    group.leave();
                }
            };
            const auto caller = [](const DispatchGroup &of) {
                return std::shared_ptr<Caller>(new Caller{of});
            };
            const DispatchQueue queue("ended");
            const DispatchGroup group;
            group.enter();
            group.notify(queue, [held = caller(group)] {});
            static_cast<void>(DispatchQueue::shutdown(10s));
            group.leave();
            group.notify(queue, [held = caller(group)] {});
            std::_Exit(6);
        },
        testing::ExitedWithCode(6), "^back back $");
}

} // namespace
} // namespace velmar
