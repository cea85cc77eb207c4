#include <Support/AppManagerFixture.h>

#include <Configuration/Configuration.h>
#include <Settings/Config.h>

namespace velmar {
namespace {

using AppManagerTest = AppManagerFixture;

constexpr AppManager::KeyModifiers allFour{true, true, true, true};

std::string forceQuitKey(std::string_view key) {
    return fmt::format(
        "<key>AppTermination</key><dict><key>ForceQuitShortcutKey</key><string>{}</string></dict>", key);
}

TEST_F(AppManagerTest, ResetsTheVariablesOfThePresentConfiguration) {
    const auto variables = [](std::string_view pairs) {
        return fmt::format("<key>General</key><dict><key>Variables</key><dict>{}</dict></dict>", pairs);
    };
    const auto store = std::make_shared<ContentManager>();
    const Shared<ContentManager>::Scope scope(store);
    writeConfiguration(variables("<key>A</key><string>1</string>"));
    const auto manager = makeAppManager();
    store->updateVariables({{"A", "2"}, {"B", "2"}});

    manager->reloadInterface(false);
    EXPECT_EQ(store->variables()->at("A"), "2");
    writeFile("no property list");
    manager->reloadInterface(true);
    EXPECT_EQ(store->variables()->at("A"), "1") << "of the former book";
    writeConfiguration(variables("<key>A</key><string>3</string><key>C</key><string>4</string>"));
    manager->reloadInterface(true);
    EXPECT_EQ(store->variables()->at("A") + store->variables()->at("B") + store->variables()->at("C"), "324");
}

TEST_F(AppManagerTest, AReloadReadsTheFileAgainWithoutJudgingIt) {
    const Config<std::optional<std::string>> shownTitle(
        [](const Configuration &c) -> decltype(auto) { return c._window()._title(); });
    const std::string path = writeConfiguration(title("One"));
    const AppManager::Scope scope(makeAppManager());
    EXPECT_EQ(shownTitle(), "One");
    writeConfiguration(title("Two"), 0666);
    AppManager::shared()->reloadInterface(false);
    EXPECT_EQ(shownTitle(), "Two");
    ::unlink(path.c_str());
    AppManager::shared()->reloadInterface(false);
    EXPECT_EQ(shownTitle(), "Two") << "an unreadable file changes nothing";
}

TEST_F(AppManagerTest, EndsTheApplicationForTheForceQuitShortcut) {
    const struct {
        const char *key;
        const char *pressed;
        bool isMatch;
    } cases[] = {
        {"F", "f", true},       {"f", "F", true},   {"F", "g", false}, {"aab", "BA", true},
        {"ab", "a", false},     {"a", "ab", false}, {"é", "É", true},  {"ß", "s", true},
        {"e\u0301", "é", true}, {"É", "E", false},  {"я", "Я", true},  {"F", "", false},
    };
    for (const auto &[key, pressed, isMatch] : cases) {
        writeConfiguration(forceQuitKey(key));
        const auto manager = makeAppManager();
        terminations_ = 0;
        EXPECT_EQ(keyDownHandler_({pressed, allFour}), isMatch) << key << ' ' << pressed;
        EXPECT_EQ(terminations_, isMatch ? 1 : 0) << key << ' ' << pressed;
    }
}

TEST_F(AppManagerTest, NeedsAllFourModifiersForTheForceQuitShortcut) {
    writeConfiguration("");
    const auto manager = makeAppManager();
    for (unsigned held = 0; held < 0b1'0000; ++held) {
        terminations_ = 0;
        const bool isMatch =
            keyDownHandler_({"F", {(held & 1U) != 0, (held & 2U) != 0, (held & 4U) != 0, (held & 8U) != 0}});
        EXPECT_EQ(isMatch, held == 0b1111) << held;
        EXPECT_EQ(terminations_, isMatch ? 1 : 0) << held;
    }
}

TEST_F(AppManagerTest, MonitorsTheKeysForItsLifetimeUnlessSwitchedOff) {
    writeConfiguration("");
    auto manager = makeAppManager();
    const std::weak_ptr<void> monitor = std::exchange(keyDownMonitor_, nullptr);
    EXPECT_FALSE(monitor.expired());
    manager.reset();
    EXPECT_TRUE(monitor.expired());

    writeConfiguration("<key>AppTermination</key><dict><key>ForceQuitShortcutIsEnabled</key><false/></dict>");
    manager = makeAppManager();
    EXPECT_EQ(keyDownMonitor_, nullptr);
}

} // namespace
} // namespace velmar
