#include <logger/Logger.h>

#include <cstdlib>
#include <stdexcept>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <logger/ConsoleDestination.h>
#include <logger/ScopedDestinations.h>

#include "RecordingDestination.h"

namespace velmar {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

std::shared_ptr<RecordingDestination> recording(DestinationSettings settings = {}) {
    return std::make_shared<RecordingDestination>(std::move(settings));
}

TEST(Logger, MakesAMessageOnceForEachDestinationThatLogsIt) {
    const auto all = recording({.format = "$T", .minLevel = LogLevel::debug});
    const auto warnings = recording({.asynchronously = false, .minLevel = LogLevel::warning});
    const auto filtered =
        recording({.minLevel = LogLevel::debug, .filters = {[](LogLevel level, const SourceLocation &where) {
                                                    return level == LogLevel::error && where.line > 0;
                                                }}});
    const ScopedDestinations scope({all, warnings, filtered});
    const auto caller = std::this_thread::get_id();
    const std::pair<LogLevel, int> cases[] = {
        {LogLevel::verbose, 0}, {LogLevel::info, 1}, {LogLevel::warning, 2}, {LogLevel::error, 3}};
    for (const auto &[level, expected] : cases) {
        int made = 0;
        Logger::log(level, [&] {
            EXPECT_EQ(std::this_thread::get_id(), caller);
            return ++made;
        });
        EXPECT_EQ(made, expected);
        EXPECT_EQ(Logger::isLogged(level), expected > 0);
    }
    EXPECT_THAT(warnings->messages(), ElementsAre("2", "2")) << "written before the call returned";
    std::thread([] {
        pthread_setname_np(pthread_self(), "worker");
        Logger::info("of another thread");
    }).join();
    EXPECT_TRUE(Logger::flush());
    EXPECT_THAT(all->messages(), ElementsAre("1", "1", "1", "of another thread"));
    EXPECT_THAT(filtered->messages(), ElementsAre("3"));
    EXPECT_EQ(all->records().front().thread + all->records().back().thread, "mainworker");
    Logger::removeAllDestinations();
    EXPECT_FALSE(Logger::isLogged(LogLevel::error));
}

TEST(Logger, TakesFunctionsTextsAndValuesAndLosesWhatThrows) {
    const auto destination = recording({.asynchronously = false});
    const ScopedDestinations scope({destination});
    Logger::verbose([]() -> std::string { throw std::runtime_error("no text"); });
    Logger::debug(std::string_view("text").substr(1));
    Logger::warning([n = 0]() mutable { return ++n; });
    Logger::error("literal", "[context]");
    EXPECT_THAT(destination->messages(), ElementsAre("ext", "1", "literal"));
    const LogRecord last = destination->records().back();
    EXPECT_EQ(last.context, "[context]");
    EXPECT_EQ(last.level, LogLevel::error);
    EXPECT_EQ(last.where.line, __LINE__ - 5);
    EXPECT_THAT(last.where.file, testing::EndsWith("LoggerTests.cpp"));
}

TEST(Logger, KeepsTheOrderOfEachThreadWhileTheListChanges) {
    constexpr int threads = 4;
    constexpr int messages = 1000;
    const auto destination = recording();
    const ScopedDestinations scope({destination});
    std::vector<std::thread> logging;
    for (int thread = 0; thread < threads; ++thread) {
        logging.emplace_back([thread] {
            for (int i = 0; i < messages; ++i) {
                Logger::info([&] { return fmt::format("{} {}", thread, i); });
            }
        });
    }
    for (int i = 0; i < 8; ++i) {
        Logger::addDestination(recording());
    }
    for (auto &thread : logging) {
        thread.join();
    }
    EXPECT_TRUE(Logger::flush(60s));
    int next[threads] = {};
    for (const auto &message : destination->messages()) {
        const auto blank = message.find(' ');
        int &expected = next[std::stoi(message.substr(0, blank))];
        EXPECT_EQ(std::stoi(message.substr(blank + 1)), expected);
        ++expected;
    }
    EXPECT_THAT(next, testing::Each(messages));
}

TEST(Logger, BoundsWhatWaitsForADestinationThatHangsAndTellsTheLoss) {
    const auto hanging = std::make_shared<RecordingDestination>(DestinationSettings{}, false);
    const auto other = recording();
    const ScopedDestinations scope({hanging, other});
    Logger::info("taken");
    hanging->waitUntilEntered();
    EXPECT_FALSE(Logger::flush(30ms)) << "gives up at the bound";
    EXPECT_THAT(other->messages(), ElementsAre("taken"));
    constexpr std::size_t maximum = 65'536;
    for (std::size_t i = 0; i < maximum + 7; ++i) {
        Logger::info("a");
    }
    hanging->open();
    EXPECT_TRUE(Logger::flush(60s));
    const auto messages = hanging->messages();
    ASSERT_EQ(messages.size(), 1 + maximum + 1);
    EXPECT_EQ(messages.back(), "7 messages were lost because they could not be written in time");
}

TEST(Logger, WritesWhatWasLoggedBeforeTheListWasEmptied) {
    const auto hanging = std::make_shared<RecordingDestination>(DestinationSettings{}, false);
    std::weak_ptr<RecordingDestination> alive = hanging;
    {
        const ScopedDestinations scope({hanging});
        Logger::info("a");
        hanging->waitUntilEntered();
        Logger::info("b");
        Logger::removeAllDestinations();
    }
    hanging->open();
    while (hanging->messages().size() < 2) {
        std::this_thread::yield();
    }
    EXPECT_THAT(hanging->messages(), ElementsAre("a", "b"));
}

struct LogsAtItsEnd {
    ~LogsAtItsEnd() {
        Logger::info("last words");
        Logger::flush();
    }
};

TEST(LoggerDeathTest, OutlivesStaticObjects) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            static const LogsAtItsEnd late;
            Logger::addDestination(
                std::make_shared<ConsoleDestination>(DestinationSettings{}, false, STDERR_FILENO));
            std::exit(0);
        },
        testing::ExitedWithCode(0), "last words");
}

} // namespace
} // namespace velmar
