#include <Base/LoggerExtensions.h>
#include <Base/VelmarLogDestinations.h>

#include <Support/RecordedLog.h>
#include <Testing/TestIdentityAuthority.h>
#include <logger/FileDestination.h>
#include <logger/VelmarLogDestination.h>

#include <gmock/gmock.h>

namespace velmar {
namespace {

TEST(LoggerExtensions, PutTheSymbolOfTheSubjectBeforeTheMessage) {
    const RecordedLog log;
    LoggerExtensions::info(
        LogSubject::installationLogParser, [] { return "found"; }, "[context]");
    LoggerExtensions::warning(LogSubject::variables, "slow");
    LoggerExtensions::error(LogSubject::requests, "failed");
    EXPECT_THAT(log.lines(),
                testing::ElementsAre("info: 🔍 found [context]", "warning: 🔤 slow", "error: 🌐 failed"));
}

const LogFileSettings &fileOf(const BaseDestination &destination) {
    const auto &decorator = dynamic_cast<const VelmarLogDestination &>(destination);
    return dynamic_cast<const FileDestination &>(decorator.finalDestination()).file();
}

TEST(VelmarLogDestinations, WriteTheFilesOfTheUserAtTheConsole) {
    TestIdentityAuthority authority;
    authority.processUser = "root";
    authority.consoleUser = "ada";

    const auto destinations = makeVelmarLogDestinations(authority);
    ASSERT_EQ(destinations.size(), 3U);
    const auto &file = fileOf(*destinations[2]);
    EXPECT_EQ(file.logFileURL, "/Users/ada/Library/Logs/Velmar/velmar.log");
    EXPECT_EQ(file.requiredFolder, "/Users/ada");

    authority.consoleUser = "../ada";
    EXPECT_EQ(fileOf(*makeVelmarLogDestinations(authority)[1]).logFileURL, "");
}

} // namespace
} // namespace velmar
