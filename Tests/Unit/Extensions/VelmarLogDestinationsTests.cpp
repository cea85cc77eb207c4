#include <Extensions/VelmarLogDestinations.h>

#include <Testing/TestIdentityAuthority.h>
#include <logger/FileDestination.h>
#include <logger/VelmarLogDestination.h>

#include <gtest/gtest.h>

namespace velmar {
namespace {

const LogFileSettings &fileOf(const BaseDestination &destination) {
    const auto &decorator = dynamic_cast<const VelmarLogDestination &>(destination);
    return dynamic_cast<const FileDestination &>(decorator.finalDestination()).file();
}

TEST(VelmarLogDestinations, WriteTheFilesOfTheUserAtTheConsole) {
    TestIdentityAuthority authority;
    authority.processUser = "root";
    authority.consoleUser = "ada";
    authority.users["ada"].ids = {501, 20};

    const auto destinations = makeVelmarLogDestinations(authority);
    ASSERT_EQ(destinations.size(), 3U);
    const char *const paths[] = {"/tmp/ada-velmar.log", "/Users/ada/Library/Logs/Velmar/velmar.log"};
    for (const std::size_t index : {1U, 2U}) {
        const auto &file = fileOf(*destinations[index]);
        EXPECT_EQ(file.logFileURL, paths[index - 1]);
        ASSERT_TRUE(file.owner.has_value());
        EXPECT_EQ(file.owner->user, 501U);
        EXPECT_EQ(file.owner->group, 20U);
    }

    EXPECT_EQ(fileOf(*destinations[2]).requiredFolder, "/Users/ada");

    authority.consoleUser = "../ada";
    EXPECT_EQ(fileOf(*makeVelmarLogDestinations(authority)[1]).logFileURL, "");
}

} // namespace
} // namespace velmar
