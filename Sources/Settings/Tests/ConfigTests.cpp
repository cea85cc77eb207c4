#include <Settings/Config.h>

#include <Base/VelmarError.h>
#include <Configuration/Configuration.h>
#include <Foundation/PropertyList.h>

#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>

namespace velmar {
namespace {

const Config<WindowSection> _window([](const Configuration &c) -> decltype(auto) { return c._window(); });
const Config<std::optional<std::string>> _title([](const Configuration &c) -> decltype(auto) {
    return c._window()._title();
});

std::shared_ptr<const Configuration> configurationTitled(const std::string &title) {
    Configuration configuration;
    configuration._window.modify([&](WindowSection &window) { window._title.set(title); });
    return std::make_shared<const Configuration>(std::move(configuration));
}

TEST(Config, ReadsTheConfigurationOfTheMoment) {
    EXPECT_THROW(static_cast<void>(_title()), VelmarError) << "there is none yet";
    const auto slot = std::make_shared<ConfigurationSlot>(configurationTitled("One"));
    const Shared<ConfigurationSlot>::Scope scope(slot);
    const auto titleAtLaunch =
        Config<std::string>::atLaunch([](const Configuration &c) { return *c._window()._title(); });
    const auto before = _window.wrappedValue();
    slot->replacePresent(configurationTitled("Two"));
    EXPECT_EQ(_title(), "Two");
    EXPECT_EQ(titleAtLaunch(), "One");
    EXPECT_EQ(before->_title(), "One") << "a held value keeps its configuration alive";
    EXPECT_EQ(_window.wrappedValue().get(), &slot->present()->_window()) << "no copy";
}

TEST(Config, IsReadByOtherThreadsDuringAReload) {
    const auto slot = std::make_shared<ConfigurationSlot>(configurationTitled("One"));
    const Shared<ConfigurationSlot>::Scope scope(slot);
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
        const int before = readings;
        slot->replacePresent(configurationTitled(reload % 2 == 0 ? "Two" : "One"));
        readings.wait(before); // A read has ended since the replacement.
    }
    isOver = true;
    reader.join();
    EXPECT_EQ(wrong, 0);
    EXPECT_EQ(_title(), "One");
}

} // namespace
} // namespace velmar
