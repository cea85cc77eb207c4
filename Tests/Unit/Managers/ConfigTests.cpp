#include "AppManagerFixture.h"

#include <Configuration/Configuration.h>
#include <Managers/Config.h>
#include <Models/VelmarError.h>

#include <atomic>
#include <thread>

namespace velmar {
namespace {

using ConfigTest = AppManagerFixture;

const Config<WindowSection> _window([](const Configuration &c) -> decltype(auto) { return c._window(); });
const Config<std::optional<std::string>> _title([](const Configuration &c) -> decltype(auto) {
    return c._window()._title();
});

TEST_F(ConfigTest, ReadsTheConfigurationOfTheMoment) {
    EXPECT_THROW(static_cast<void>(_title()), VelmarError) << "there is none yet";
    const std::string path = writeConfiguration(title("One"));
    const Shared<AppManager>::Scope scope(makeAppManager());
    const auto before = _window.wrappedValue();
    writeConfiguration(title("Two"), 0666);
    AppManager::shared()->reloadInterface(false);
    EXPECT_EQ(_title(), "Two") << "the file is not judged again";
    EXPECT_EQ(before->_title(), "One") << "what is held keeps its configuration alive";
    EXPECT_EQ(_window.wrappedValue().get(), &AppManager::shared()->configuration()->_window()) << "no copy";
    ::unlink(path.c_str());
    AppManager::shared()->reloadInterface(false);
    EXPECT_EQ(_title(), "Two") << "what cannot be read changes nothing";
}

TEST_F(ConfigTest, IsReadByOtherThreadsDuringAReload) {
    writeConfiguration(title("One"));
    const Shared<AppManager>::Scope scope(makeAppManager());
    std::atomic<bool> isOver = false;
    std::atomic<int> readings = 0;
    std::atomic<int> wrong = 0;
    std::thread reader([&] {
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
    EXPECT_EQ(_title(), "One");
}

} // namespace
} // namespace velmar
