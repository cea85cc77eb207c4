#include <Managers/ConfigurationLocator.h>

#include <Constants/Domain.h>
#include <Foundation/FileManager.h>
#include <Foundation/UserDefaults.h>
#include <Models/VelmarError.h>
#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>

#include <fmt/format.h>
#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>

namespace velmar {
namespace {

class ConfigurationLocatorTest : public testing::Test {
protected:
    ConfigurationLocatorTest() { ::setenv("XDG_CONFIG_HOME", directory_.path("config").c_str(), 1); }
    ~ConfigurationLocatorTest() override { ::unsetenv("XDG_CONFIG_HOME"); }

    ConfigurationLocator locator(const std::vector<std::string> &arguments = {}) {
        return ConfigurationLocator(LaunchOptions::parse(arguments), defaults(),
                                    FileManager::defaultManager(),
                                    {URL::file(directory_.path("Managed Preferences"), true),
                                     URL::file(directory_.path("Application Support"), true)});
    }

    // Made anew, as a later start does.
    UserDefaults &defaults() { return defaults_.emplace(Domain::defaultsSuite); }

    TemporaryDirectory directory_;
    std::optional<UserDefaults> defaults_;
    RecordedLog log_;
};

TEST_F(ConfigurationLocatorTest, TakesTheNameFromTheOptions) {
    const struct {
        std::vector<std::string> arguments;
        const char *name;
    } cases[] = {
        {{"velmar"}, "Velmar.plist"},
        {{"velmar", "-c", "foo", "--config"}, "foo.plist"},
        {{"velmar", "-c", "foo", "-c", "bar"}, "foo.plist"},
        {{"velmar", "-c", "--config", "bar"}, "--config.plist"},
        {{"velmar", "-c=foo"}, "Velmar.plist"},
        {{"velmar", "-c", ""}, ".plist"},
    };
    for (const auto &[arguments, name] : cases) {
        EXPECT_EQ(locator(arguments).configurationName(), name)
            << fmt::format("{}", fmt::join(arguments, " "));
    }
}

TEST_F(ConfigurationLocatorTest, GoesOnWithANameThatCannotBeRemembered) {
    directory_.write("config/Velmar", "a file where the directory belongs");
    EXPECT_EQ(locator({"-c", "foo", "--save"}).configurationName(), "foo.plist");
    ASSERT_EQ(log_.lines().size(), 1U);
    EXPECT_TRUE(log_.lines()[0].starts_with("warning: Unable to save the configuration name 'foo.plist' ["));
}

TEST_F(ConfigurationLocatorTest, KeepsAnAbsoluteNameBelowThePlaces) {
    const std::string outside = directory_.write("outside.plist", "");
    EXPECT_THROW(static_cast<void>(locator().findConfigurationFile(outside)), VelmarError);
    const std::string inside = directory_.write("Managed Preferences" + outside, "");
    EXPECT_EQ(std::filesystem::path(locator().findConfigurationFile(outside).path()).lexically_normal(),
              inside);
}

} // namespace
} // namespace velmar
