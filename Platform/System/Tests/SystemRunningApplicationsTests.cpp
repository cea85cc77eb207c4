#include <System/SystemRunningApplications.h>

#include <Dispatch/MainThreadQueue.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestTimerScheduler.h>

#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <string>
#include <vector>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmar {
namespace {

struct CountingQueue final : MainThreadQueue {
    std::atomic<int> posts = 0;
    int runs = 0;
    void async(std::function<void()> function) override {
        ++posts; // counted first: the main thread may run the function at once
        MainThreadQueue::async([this, function = std::move(function)] {
            ++runs;
            function();
        });
    }
};

TEST(SystemRunningApplications, TellAProcessOfThisMachine) {
    const TemporaryDirectory directory;
    const std::string program = directory.path("velmar-test-program");
    std::filesystem::copy_file("/bin/sleep", program);
    CountingQueue mainQueue;
    TestTimerScheduler timers;
    SystemRunningApplications applications(mainQueue, timers, []() -> ProcessWatch::Places {
        return {.processes = "/proc", .applications = {}, .executables = {}, .users = {geteuid()}};
    });
    std::vector<RunningApplication> started;
    auto observation = applications.observe([&](const RunningApplication &application) {
        if (application.identifier == "velmar-test-program") {
            started.push_back(application);
        }
    });

    char name[] = "program", time[] = "60";
    char *arguments[] = {name, time, nullptr};
    pid_t process = 0, later = 0;
    ASSERT_EQ(posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    // Each turn of the clock is a look.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (started.empty() && std::chrono::steady_clock::now() < deadline) {
        timers.advance(SystemRunningApplications::interval);
        mainQueue.runUntilEmpty();
    }
    EXPECT_EQ(started, (std::vector<RunningApplication>{{"velmar-test-program", process}}));

    // A start that is on its way to the observer.
    ASSERT_EQ(posix_spawn(&later, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    for (mainQueue.posts = 0; mainQueue.posts == 0 && std::chrono::steady_clock::now() < deadline;) {
        timers.advance(SystemRunningApplications::interval);
    }
    observation.reset();
    EXPECT_EQ(timers.runningTimers(), 0U);
    mainQueue.runs = 0;
    EXPECT_TRUE(mainQueue.runUntil([&] { return mainQueue.runs > 0; }));
    EXPECT_EQ(started.size(), 1U);
    for (const pid_t each : {process, later}) {
        kill(each, SIGKILL);
        waitpid(each, nullptr, 0);
    }
}

} // namespace
} // namespace velmar
