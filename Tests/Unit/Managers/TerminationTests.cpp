#include <Configuration/Configuration.h>
#include <Constants/TerminationNotifications.h>
#include <Managers/AppTerminationManager.h>
#include <Managers/TerminationScript.h>
#include <Models/VelmarError.h>

#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestMainQueue.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <utility>
#include <vector>

namespace velmar {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

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
        Config<std::vector<TriggeredActionSetItem>>(
            [](const Configuration &c) -> decltype(auto) { return c._actionSets(); }, sets));
    service.terminate();
    ASSERT_EQ(dispatcher->handlers.size(), 2U);
    dispatcher->handlers[1]();
    ASSERT_TRUE(DispatchQueue::global().waitUntilIdle(std::chrono::seconds(10)));
    EXPECT_EQ(mainQueue.runUntilEmpty(), 0U);
    dispatcher->handlers[0]();
    EXPECT_TRUE(mainQueue.runUntil([&] { return terminations == 1; }));
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
        std::string_view posted; ///< Empty for a quit.
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
        const NotificationCenter::Token tokens[] = {
            observe(userTriesToQuitWhenNotAllMonitorsAreInstalled),
            observe(userTriesToQuitWhenNotAllMonitoredFilesArePresent)};
        const auto termination = std::make_shared<Termination>();
        const auto store = std::make_shared<ContentManager>();
        AppTerminationManager manager({.terminationService = termination,
                                       .notificationCenter = center,
                                       .contentManager = store,
                                       .userCanQuitIfInstallationIsIncomplete = Config<bool>(
                                           [](const Configuration &) { return false; }, userCanQuit)});
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

class TerminationScriptTest : public testing::Test {
protected:
    using Texts = std::vector<std::string>;

    /// The lines of the log behind a termination, without the directory.
    Texts run(const AppTerminationSection &section, bool isInstallationComplete) {
        const TerminationScript script(
            Config<AppTerminationSection>(
                [](const Configuration &c) -> decltype(auto) { return c._appTermination(); }, section),
            [this](const std::string & /*path*/, auto completion) {
                ++runs_;
                script_ = std::thread([completion] { completion(std::string("done")); });
            });
        script.runBeforeTermination(isInstallationComplete);
        static_cast<void>(DispatchQueue::global().waitUntilIdle(std::chrono::seconds(10)));
        if (script_.joinable()) {
            script_.join();
        }
        return log_.takeLines();
    }

    RecordedLog log_;
    TemporaryDirectory directory_;
    std::atomic<int> runs_{0};
    std::thread script_;
};

TEST_F(TerminationScriptTest, RunsTheScriptOfTheInstallationsState) {
    AppTerminationSection section;
    EXPECT_THAT(run(section, true), IsEmpty());
    section._completeInstallationScriptPath.set("");
    section._incompleteInstallationScriptPath.set("/no/such");
    section._waitForExecutionScriptExecution.set(true);
    EXPECT_THAT(run(section, true), ElementsAre(HasSubstr("Empty termination script path")));
    EXPECT_THAT(run(section, false), ElementsAre(HasSubstr("No termination script at path '/no/such'")));
    EXPECT_EQ(runs_, 0);

    const std::string path = directory_.write("end.sh", "");
    section._completeInstallationScriptPath.set(path);
    EXPECT_THAT(run(section, true),
                testing::UnorderedElementsAre(
                    HasSubstr("Waiting for script to complete..."),
                    HasSubstr("Launched script at '" + path + "'"),
                    HasSubstr("Executed script at '" + path + "' with following output:\ndone")));
    section._executeAsRoot.set(true);
    EXPECT_THAT(run(section, true),
                testing::Contains(testing::AllOf(
                    testing::StartsWith("error: "),
                    HasSubstr("Error while executing script at '" + path + "' with root privileges: "))));
    section._executeAsRoot.set(false);
    section._waitForExecutionScriptExecution.set(false);
    EXPECT_THAT(run(section, true), testing::SizeIs(2)) << "not waited for";
    EXPECT_EQ(runs_, 2);
}

} // namespace
} // namespace velmar
