#include "AppManagerFixture.h"

#include <Configuration/Configuration.h>
#include <Managers/Config.h>
#include <Models/VelmarError.h>

#include <atomic>
#include <thread>

namespace velmar {
namespace {

using ConfigTest = AppManagerFixture;

Config<std::optional<std::string>> windowTitle() {
    return Config<std::optional<std::string>>([](const Configuration &configuration) -> decltype(auto) {
        return configuration._window()._title();
    });
}

Config<WindowSection> window() {
    return Config<WindowSection>(
        [](const Configuration &configuration) -> decltype(auto) { return configuration._window(); });
}

TEST_F(ConfigTest, ReadsTheConfigurationOfTheMoment) {
    writeConfiguration(title("One"));
    const Shared<AppManager>::Scope scope(makeAppManager());
    const auto _title = windowTitle();
    const auto _window = window();
    EXPECT_EQ(_title(), "One");

    const auto before = _window.wrappedValue();
    writeConfiguration(title("Two"));
    AppManager::shared()->reloadInterface(false);
    EXPECT_EQ(_title(), "Two");
    EXPECT_EQ(_window.wrappedValue()->_title(), "Two");
    EXPECT_EQ(before->_title(), "One") << "what is held keeps its configuration alive";
    EXPECT_EQ(_window.wrappedValue().get(), &AppManager::shared()->configuration()->_window()) << "no copy";
}

TEST_F(ConfigTest, PrefersTheOverridingValueAndNeedsNoManagerForIt) {
    auto _title = windowTitle();
    EXPECT_THROW(static_cast<void>(_title()), VelmarError);
    _title.setOverrideValue(std::optional<std::string>("Mine"));
    EXPECT_EQ(_title(), "Mine");

    writeConfiguration(title("One"));
    const Shared<AppManager>::Scope scope(makeAppManager());
    EXPECT_EQ(_title(), "Mine");
    _title.setOverrideValue(std::nullopt);
    EXPECT_EQ(_title(), "One");
}

TEST_F(ConfigTest, IsReadByOtherThreadsDuringAReload) {
    writeConfiguration(title("One"));
    const Shared<AppManager>::Scope scope(makeAppManager());
    std::atomic<bool> isOver = false;
    std::atomic<int> readings = 0;
    std::atomic<int> wrong = 0;
    std::thread reader([&] {
        const auto _title = windowTitle();
        while (!isOver) {
            const auto title = _title();
            wrong += title == "One" || title == "Two" ? 0 : 1;
            ++readings;
            readings.notify_one();
        }
    });
    for (int reload = 0; reload < 50; ++reload) {
        writeConfiguration(title(reload % 2 == 0 ? "Two" : "One"));
        const int before = readings;
        AppManager::shared()->reloadInterface(false);
        readings.wait(before); // The reader came by since the reload began.
    }
    isOver = true;
    reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(windowTitle()(), "One");
}

} // namespace
} // namespace velmar
