#include <Extensions/LoggerExtensions.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <logger/BaseDestination.h>
#include <logger/ScopedDestinations.h>

namespace velmar {
namespace {

class LastRecord : public BaseDestination {
public:
    LastRecord() : BaseDestination({.asynchronously = false}) {}
    void write(std::span<const LogRecord> records) override { record = records.back(); }

    LogRecord record;
};

TEST(LoggerExtensions, PutTheSymbolOfTheSubjectBeforeTheMessage) {
    const auto last = std::make_shared<LastRecord>();
    const ScopedDestinations scope({last});
    LoggerExtensions::info(
        LogSubject::installationLogParser, [] { return "found"; }, "[context]");
    EXPECT_EQ(last->record.message, "🔍 found");
    EXPECT_EQ(last->record.context, "[context]");
    EXPECT_EQ(last->record.level, LogLevel::info);
    LoggerExtensions::warning(LogSubject::actions, "slow");
    EXPECT_EQ(last->record.level, LogLevel::warning);
    LoggerExtensions::error(LogSubject::actions, "failed");
    EXPECT_EQ(last->record.level, LogLevel::error);
    EXPECT_THAT(last->record.where.file, testing::EndsWith("LoggerExtensionsTests.cpp"));
}

} // namespace
} // namespace velmar
