#include <System/SystemRunningApplications.h>

#include <Testing/TemporaryDirectory.h>
#include <Testing/TestMainQueue.h>
#include <Testing/TestTimerScheduler.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <tuple>
#include <vector>

#include <csignal>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velmar {
namespace {

TEST(SystemRunningApplications, TellAProcessOfThisMachine) {
    const TemporaryDirectory directory;
    const std::string program = directory.path("velmar-test-program");
    std::filesystem::copy_file("/bin/sleep", program);
    TestMainQueue mainQueue;
    TestTimerScheduler timers;
    SystemRunningApplications applications(
        mainQueue, timers,
        {.processes = "/proc", .applications = {}, .executables = {}, .users = {geteuid()}});
    std::vector<RunningApplication> started;
    auto observation = applications.observe([&](const RunningApplication &application) {
        if (application.identifier == "velmar-test-program")
            started.push_back(application);
    });

    char name[] = "program", time[] = "60";
    char *arguments[] = {name, time, nullptr};
    pid_t process = 0;
    ASSERT_EQ(posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments, environ), 0);
    // Each turn of the clock is a look, unless the former one is still under way.
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(20);
    while (started.empty() && std::chrono::steady_clock::now() < deadline) {
        timers.advance(SystemRunningApplications::interval);
        std::ignore = mainQueue.runUntil([&] { return !started.empty(); }, std::chrono::milliseconds(5));
    }
    EXPECT_EQ(started, (std::vector<RunningApplication>{{"velmar-test-program", process}}));

    // With a look under way.
    timers.advance(SystemRunningApplications::interval);
    observation.reset();
    EXPECT_EQ(timers.runningTimers(), 0U);
    kill(process, SIGKILL);
    waitpid(process, nullptr, 0);
}

} // namespace
} // namespace velmar
