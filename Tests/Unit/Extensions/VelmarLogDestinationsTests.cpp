#include <Extensions/VelmarLogDestinations.h>

#include <Testing/TestIdentityAuthority.h>
#include <logger/ConsoleDestination.h>
#include <logger/FileDestination.h>
#include <logger/VelmarLogDestination.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

TEST(VelmarLogDestinations, WriteTheFilesOfTheUserAtTheConsole) {
    TestIdentityAuthority authority;
    authority.processUser = "root";
    authority.consoleUser = "ada";
    authority.users["ada"].ids = {501, 20};

    const auto destinations = makeVelmarLogDestinations(authority);
    ASSERT_EQ(destinations.size(), 3U);
    const auto final = [&](std::size_t index) {
        return &dynamic_cast<const VelmarLogDestination &>(*destinations[index]).finalDestination();
    };
    EXPECT_NE(dynamic_cast<const ConsoleDestination *>(final(0)), nullptr);
    const char *const paths[] = {"/tmp/ada-velmar.log", "/Users/ada/Library/Logs/Velmar/velmar.log"};
    for (const std::size_t index : {1U, 2U}) {
        const auto &file = dynamic_cast<const FileDestination &>(*final(index)).file();
        EXPECT_EQ(file.logFileURL, paths[index - 1]);
        ASSERT_TRUE(file.owner.has_value());
        EXPECT_EQ(file.owner->user, 501U);
        EXPECT_EQ(file.owner->group, 20U);
    }

    authority.consoleUser = "nobody known";
    const auto unknown = makeVelmarLogDestinations(authority);
    const auto &decorator = dynamic_cast<const VelmarLogDestination &>(*unknown[1]);
    EXPECT_FALSE(
        dynamic_cast<const FileDestination &>(decorator.finalDestination()).file().owner.has_value());
}

} // namespace
} // namespace velmar
