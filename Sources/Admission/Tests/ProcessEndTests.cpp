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

// Logs a line after the queue has begun and the caller has been told.
void logFrom(const DispatchQueue &queue) {
    std::promise<void> started;
    queue.async([&started] {
        started.set_value();
        std::this_thread::sleep_for(50ms); // work, not a wait
        Logger::error("late");
    });
    started.get_future().wait();
}

// Prints what happens in which order.
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

} // namespace
} // namespace velmar
