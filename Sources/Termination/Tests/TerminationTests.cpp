#include <Base/VelmarError.h>
#include <Configuration/Configuration.h>
#include <Termination/AppTerminationManager.h>
#include <Termination/TerminationNotifications.h>
#include <Termination/TerminationScript.h>

#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestMainQueue.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>
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

TEST(AppTerminationService, EndsTheApplicationWhenEverySetOfTheTerminationHasRun) {
    std::vector<TriggeredActionSetItem> sets(3);
    const ActionTrigger termination{ActionTrigger::Termination()};
    sets[0]._triggers.set({termination});
    sets[1]._triggers.set({ActionTrigger{ActionTrigger::Launch()}});
    sets[2]._triggers.set({ActionTrigger{ActionTrigger::Launch()}, termination});
    TestMainQueue mainQueue;
    const auto dispatcher = std::make_shared<Dispatcher>();
    int terminations = 0;
    AppTerminationService service(
        mainQueue, [&] { ++terminations; }, dispatcher,
        Config<std::vector<TriggeredActionSetItem>>::always(sets));
    service.terminate();
    ASSERT_EQ(dispatcher->handlers.size(), 2U);
    dispatcher->handlers[0]();
    service.terminate();
    EXPECT_EQ(dispatcher->handlers.size(), 2U) << "one still runs";
    dispatcher->handlers.clear(); // Both sets stop before their end.
    service.terminate();
    ASSERT_EQ(dispatcher->handlers.size(), 2U);
    dispatcher->handlers[1]();
    ASSERT_TRUE(DispatchQueue::global().waitUntilIdle(std::chrono::seconds(10)));
    EXPECT_EQ(mainQueue.runUntilEmpty(), 0U);
    dispatcher->handlers[0]();
    EXPECT_TRUE(mainQueue.runUntil([&] { return terminations == 1; }));

    AppTerminationService impatient(
        mainQueue, [] {}, dispatcher, Config<std::vector<TriggeredActionSetItem>>::always(sets),
        std::chrono::seconds(0));
    impatient.terminate();
    impatient.terminate();
    EXPECT_EQ(dispatcher->handlers.size(), 6U) << "a set that hangs doesn't take the way out away";
}

class Termination final : public AppTermination {
public:
    void terminate() override { ++count; }
    int count = 0;
};

TEST(AppTerminationManager, LetsTheUserQuitWhenBothConditionsHold) {
    using namespace TerminationNotifications;
    constexpr auto incomplete = "info: 🚪 App termination prevented since the installation is not complete";
    constexpr auto missing =
        "info: 🚪 App termination prevented since at least one mandatory monitored file isn't "
        "present on the device";
    const struct {
        bool isComplete;
        bool arePresent;
        bool userCanQuit;
        std::string_view posted; ///< Empty if the application quits.
        const char *line = nullptr;
    } cases[] = {
        {true, true, false, ""},
        {false, true, false, userTriesToQuitWhenNotAllMonitorsAreInstalled, incomplete},
        {false, false, false, userTriesToQuitWhenNotAllMonitorsAreInstalled, incomplete},
        {false, true, true, ""},
        {false, false, true, userTriesToQuitWhenNotAllMonitoredFilesArePresent, missing},
        {true, false, false, userTriesToQuitWhenNotAllMonitoredFilesArePresent, missing},
    };
    for (const auto &[isComplete, arePresent, userCanQuit, posted, line] : cases) {
        const RecordedLog log;
        NotificationCenter center;
        std::string seen;
        const auto observe = [&](std::string_view name) {
            return center.addObserver(std::string(name), [&seen, name] { seen += name; });
        };
        const NotificationObserver tokens[] = {observe(userTriesToQuitWhenNotAllMonitorsAreInstalled),
                                               observe(userTriesToQuitWhenNotAllMonitoredFilesArePresent)};
        const auto termination = std::make_shared<Termination>();
        const auto store = std::make_shared<ContentManager>();
        AppTerminationManager manager(termination, store, center, Config<bool>::always(userCanQuit));
        manager.setInstallationComplete(isComplete);
        manager.setMandatoryFilesPresent(arePresent);
        EXPECT_EQ(store->variables()->at("INSTALLATION_COMPLETE"), isComplete ? "true" : "false");
        EXPECT_EQ(store->variables()->at("ALL_MANDATORY_FILES_PRESENT"), arePresent ? "true" : "false");
        manager.tryToQuitApplication();
        EXPECT_EQ(seen, posted);
        EXPECT_EQ(termination->count, posted.empty() ? 1 : 0);
        EXPECT_EQ(log.lines(), line == nullptr ? std::vector<std::string>() : std::vector<std::string>{line});
    }
}

TEST(TerminationScript, IsThatOfTheInstallationsStateAndIsWaitedForOnAnotherThread) {
    const TemporaryDirectory directory;
    AppTerminationSection section;
    section._waitForExecutionScriptExecution.set(true);
    section._completeInstallationScriptPath.set(directory.write("complete", ""));
    section._incompleteInstallationScriptPath.set(directory.write("incomplete", ""));
    const TerminationScript script(
        [] { return false; }, Config<AppTerminationSection>::always(section),
        [](const std::string &path, const auto & /*launched*/, auto completion) {
            std::thread([=] { completion(path.substr(path.rfind('/'))); }).detach();
        });
    for (const bool isComplete : {true, false}) {
        const RecordedLog log;
        script.runBeforeTermination(isComplete);
        EXPECT_THAT(log.lines(), testing::Contains(testing::EndsWith(isComplete ? "output:\n/complete"
                                                                                : "output:\n/incomplete")));
    }
}

TEST(TerminationScript, HasBegunWhenItIsNotWaitedFor) {
    const TemporaryDirectory directory;
    AppTerminationSection section;
    section._completeInstallationScriptPath.set(directory.write("complete", ""));
    std::atomic<bool> isLaunched{false};
    std::thread slow;
    const TerminationScript script(
        [] { return false; }, Config<AppTerminationSection>::always(section),
        [&](const std::string & /*path*/, auto launched, const auto & /*completion*/) {
            slow = std::thread([&isLaunched, launched] {
                std::this_thread::sleep_for(std::chrono::milliseconds(400)); // Longer than the minimum delay.
                isLaunched = true;
                launched();
            });
        });
    script.runBeforeTermination(true);
    EXPECT_TRUE(isLaunched);
    slow.join();
}

} // namespace
} // namespace velmar
