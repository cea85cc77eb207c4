#include <Views/Content/VariablesRefresh.h>

#include <Testing/TestMainQueue.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <thread>

namespace velmar {
namespace {

class Refresh : public testing::Test {
protected:
    void write(std::string_view name, std::string value) {
        manager->updateVariable(name, std::move(value), false);
    }

    std::shared_ptr<ContentManager> manager = std::make_shared<ContentManager>();
    Shared<ContentManager>::Scope scope{manager};
    TestMainQueue queue;
    int refreshes = 0;
    std::unique_ptr<VariablesRefresh> refresh =
        std::make_unique<VariablesRefresh>(queue, [this] { ++refreshes; });
};

TEST_F(Refresh, RunsOnceForAllChangesThatTheQueueFinds) {
    refresh->follow({"A", "B"});
    write("C", "1");
    EXPECT_EQ(queue.runUntilEmpty(), 0U) << "nobody's concern";
    for (const int round : {1, 2}) {
        std::thread([&] {
            for (int value = 0; value < 100; ++value) {
                write("A", std::to_string(value));
                write("B", std::to_string(value));
            }
        }).join();
        EXPECT_EQ(queue.runUntilEmpty(), 1U);
        EXPECT_EQ(refreshes, round);
    }
}

TEST_F(Refresh, IsOverWhenItsOwnerLetsGo) {
    refresh->follow({"A"});
    write("A", "1");
    refresh.reset();
    write("A", "2");
    queue.runUntilEmpty();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(Refresh, FollowsTheNamesThatAValueBringsInMeanwhile) {
    write("A", "");
    bool isFirst = true;
    refresh->follow([&](const Variables &variables) {
        const VariableNames names{"A", variables.find("A")->second};
        if (std::exchange(isFirst, false)) {
            write("A", "B");
        }
        return names;
    });
    queue.runUntilEmpty();
    refreshes = 0;
    write("B", "1");
    queue.runUntilEmpty();
    EXPECT_EQ(refreshes, 1);
    int readings = 0;
    refresh->follow([&](const Variables &) { return VariableNames{std::to_string(++readings)}; });
    EXPECT_EQ(queue.runUntilEmpty(), 1U) << "names that never settle are left to a later refresh";
}

} // namespace
} // namespace velmar
