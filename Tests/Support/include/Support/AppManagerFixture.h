#pragma once

#include <Core/AppManager.h>
#include <Foundation/FileManager.h>
#include <Foundation/UserDefaults.h>
#include <Support/RecordedLog.h>
#include <Testing/TemporaryDirectory.h>
#include <Testing/TestIdentityAuthority.h>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include <sys/stat.h>

namespace velmar {

/// Fixture that makes AppManagers for files in a temporary directory instead of the system's places. The user
/// of the test process is an administrator.
class AppManagerFixture : public testing::Test {
protected:
    AppManagerFixture() {
        ::setenv("XDG_CONFIG_HOME", directory_.path("config").c_str(), 1);
        const auto own = FileManager::defaultManager().attributesOfItem(directory_.path());
        authority_.users[own.ownerName.value_or("")].groups = {"admin"};
    }
    ~AppManagerFixture() override { ::unsetenv("XDG_CONFIG_HOME"); }

    /// Writes a configuration with these sections and slides, both XML, as "x.plist". Returns its path.
    std::string writeConfiguration(std::string_view sections, ::mode_t mode = 0644,
                                   const std::string &slides = slideOf(textComponent("Hello."))) const {
        return writeFile(
            fmt::format("<plist version=\"1.0\"><dict>{}<key>Slides</key><array>{}</array></dict>"
                        "</plist>",
                        sections, slides),
            mode);
    }

    static std::string textComponent(std::string_view text) {
        return fmt::format(
            "<dict><key>Type</key><string>Text</string><key>Text</key><string>{}</string></dict>", text);
    }

    static std::string slideOf(std::string_view components) {
        return fmt::format("<dict><key>Containers</key><array><dict><key>Components</key><array>{}</array>"
                           "</dict></array></dict>",
                           components);
    }

    std::string writeFile(std::string_view content, ::mode_t mode = 0644) const {
        const std::string path = directory_.write("Managed Preferences/x.plist", content);
        EXPECT_EQ(::chmod(path.c_str(), mode), 0);
        return path;
    }

    static std::string title(std::string_view text) {
        return fmt::format("<key>Window</key><dict><key>OnScreen</key><string>Simple</string>"
                           "<key>Title</key><string>{}</string></dict>",
                           text);
    }

    std::shared_ptr<AppManager> makeAppManager() {
        const ConfigurationLocator locator(
            {"x", false}, defaults_, FileManager::defaultManager(),
            {URL::file(directory_.path("Managed Preferences"), true), std::nullopt});
        return std::make_shared<AppManager>(
            locator, authority_,
            AppManager::ForceQuit{.addKeyDownMonitor =
                                      [this](AppManager::KeyDownHandler handler) {
                                          keyDownHandler_ = std::move(handler);
                                          return keyDownMonitor_ = std::make_shared<int>();
                                      },
                                  .terminate = [this] { ++terminations_; }});
    }

    TemporaryDirectory directory_;
    UserDefaults defaults_{"Velmar"}; // Nothing is stored in it.
    TestIdentityAuthority authority_;
    RecordedLog log_;
    AppManager::KeyDownHandler keyDownHandler_;
    std::shared_ptr<void> keyDownMonitor_;
    int terminations_ = 0;
};

} // namespace velmar
