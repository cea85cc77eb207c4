#include <Views/Content/VariablesRefresh.h>

#include <Dispatch/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <thread>

namespace velmar {
namespace {

/// A store that exposes its observers.
class Store final : public ContentManagerProtocol {
public:
    void updateVariable(std::string_view name, std::string value, bool log) override {
        variables_.updateVariable(name, std::move(value), log);
    }
    void updateVariables(const std::map<std::string, std::string> & /*variables*/) override {}
    void updatePlaceholder(GeneralSection::Placeholders /*name*/, std::string /*value*/) override {}
    [[nodiscard]] VariablesSnapshot variables() const override { return variables_.variables(); }
    void addObserver(const UUID &identity, std::weak_ptr<ContentManagerObserver> observer,
                     ObservedNames names) override {
        observers.insert(identity);
        variables_.addObserver(identity, std::move(observer), std::move(names));
    }
    void setObservedNames(const UUID &identity, ObservedNames names) override {
        variables_.setObservedNames(identity, std::move(names));
    }
    void removeObserver(const UUID &identity) override {
        observers.erase(identity);
        variables_.removeObserver(identity);
    }

    std::set<UUID> observers;

private:
    ContentManager variables_;
};

/// Calls the test between the posting of a function and the end of the write that caused it.
struct InterruptedQueue final : MainThreadQueue {
    void async(std::function<void()> function) override {
        MainThreadQueue::async(std::move(function));
        afterPosting();
    }
    std::function<void()> afterPosting = [] {};
};

class Refresh : public testing::Test {
protected:
    void write(std::string_view name, std::string value) {
        manager->updateVariable(name, std::move(value), false);
    }

    std::shared_ptr<Store> manager = std::make_shared<Store>();
    InterruptedQueue queue;
    int refreshes = 0;
    std::unique_ptr<VariablesRefresh> refresh = std::make_unique<VariablesRefresh>(
        queue, [this] { ++refreshes; }, manager);
};

TEST_F(Refresh, RunsOnceForAllChangesThatTheQueueFinds) {
    write("A", "0");
    EXPECT_EQ(queue.runUntilEmpty(), 0U) << "no names yet";
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
    EXPECT_EQ(manager->observers.size(), 1U);
    refresh.reset();
    EXPECT_TRUE(manager->observers.empty());
    write("A", "2");
    queue.runUntilEmpty();
    EXPECT_EQ(refreshes, 0);
}

TEST_F(Refresh, IsOverEvenWhileAWriterStillTellsOfAChange) {
    refresh->follow({"A"});
    queue.afterPosting = [this] {
        refresh.reset();
        queue.runUntilEmpty();
    };
    write("A", "1");
    EXPECT_EQ(refresh, nullptr);
    EXPECT_EQ(refreshes, 0);
    EXPECT_TRUE(manager->observers.empty());
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
