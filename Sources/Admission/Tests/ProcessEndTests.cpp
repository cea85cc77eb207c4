#include <Base/ProcessEnd.h>

#include <Admission/ConfigurationRefusal.h>
#include <Base/VelmarError.h>
#include <Dispatch/DispatchQueue.h>
#include <Support/RecordedLog.h>

#include <gtest/gtest.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <future>
#include <memory>
#include <span>
#include <string>
#include <thread>

namespace velmar {
namespace {

using namespace std::chrono_literals;

void print(const RecordedLog &log) {
    for (const std::string &line : log.lines()) {
        std::fprintf(stderr, "%s;", line.c_str());
    }
}

// Starts a function on the queue that logs a line after this call has returned.
void logFrom(const DispatchQueue &queue) {
    std::promise<void> started;
    queue.async([&started] {
        started.set_value();
        std::this_thread::sleep_for(50ms); // work, not a wait
        Logger::error("late");
    });
    started.get_future().wait();
}

// Prints the steps of a refusal in their order.
[[noreturn]] void refuse() {
    const RecordedLog log;
    const DispatchQueue queue("busy");
    const ConfigurationRefusal refusal{
        [&](const std::string &message, const std::string &button) {
            print(log);
            std::fprintf(stderr, "[%s|%s]", message.c_str(), button.c_str());
            logFrom(queue);
            queue.async([] { Logger::error("never"); });
        },
        [&](int status) {
            print(log);
            std::_Exit(status == 0 ? 5 : 1);
        },
    };
    refusal.exitBecauseOf(VelmarError(VelmarError::MissingConfigurationFile{"file:///x"}));
}

TEST(ProcessEndDeathTest, ARefusalIsLoggedThenShownThenEndsTheProcessWithZeroOnceQueuesHaveEnded) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(refuse(), testing::ExitedWithCode(5),
                "^error: A problem occurred while retrieving configuration: Configuration file is missing. "
                ".file:///x.;.The configuration file is incorrect.Quit.error: A problem .*;error: late;$");
}

/// A destination that blocks forever, like a pipe without a reader.
struct HangingDestination final : BaseDestination {
    void write(std::span<const LogRecord> /*records*/) override { std::promise<void>().get_future().wait(); }
};

// Exits with 0 if only the first of two calls waits.
[[noreturn]] void settleTwice() {
    Logger::addDestination(std::make_shared<HangingDestination>());
    Logger::error("kept waiting");
    const auto duration = [] {
        const auto start = std::chrono::steady_clock::now();
        static_cast<void>(settleBeforeExit());
        return std::chrono::steady_clock::now() - start;
    };
    const auto first = duration();
    const auto second = duration();
    std::_Exit(first >= 1s && second < first / 2 ? 0 : 1);
}

TEST(ProcessEndDeathTest, ALogThatHangsHoldsTheProcessUpOnce) {
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(settleTwice(), testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace velmar
