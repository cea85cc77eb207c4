#include <Core/AppManager.h>

#include <Actions/ActionSetManager.h>
#include <Admission/ConfigurationFile.h>
#include <Configuration/Configuration.h>
#include <Dispatch/UncaughtHandler.h>
#include <Foundation/UnicodeText.h>
#include <logger/Logger.h>

#include <set>
#include <string>
#include <string_view>
#include <utility>

namespace velmar {

namespace {

// Returns the characters of a text in upper case, UTF-8. Composed first: "é" is one code point from a
// keyboard, but may be two in a file.
std::set<std::string> charactersInUpperCase(std::string_view text) {
    const std::string upper = UnicodeText::composed(UnicodeText::uppercased(text));
    std::set<std::string> characters;
    for (std::size_t start = 0; start < upper.size();) {
        std::size_t end = start + 1;
        while (end < upper.size() && (static_cast<unsigned char>(upper[end]) & 0xC0U) == 0x80U) {
            ++end;
        }
        characters.insert(upper.substr(start, end - start));
        start = end;
    }
    return characters;
}

std::shared_ptr<ConfigurationSlot> admittedConfiguration(const URL &url, const IdentityAuthority &authority) {
    const ConfigurationFile file(url);
    file.hasConfigFileCorrectPermissions(authority);
    return std::make_shared<ConfigurationSlot>(file.retrieveConfiguration());
}

} // namespace

AppManager::AppManager(const ConfigurationLocator &locator, const IdentityAuthority &identityAuthority,
                       ForceQuit forceQuit, std::shared_ptr<ContentManager> contentManager)
    : configurationFileURL_(locator.findConfigurationFile(locator.configurationName())),
      configuration_(admittedConfiguration(configurationFileURL_, identityAuthority)),
      terminate_(std::move(forceQuit.terminate)),
      contentManager_(std::move(contentManager)) {
    Logger::info("Successfully decoded configuration file");

    if (launchConfiguration()->_appTermination()._isForceQuitShortcutEnabled()) {
        keyDownMonitor_ =
            forceQuit.addKeyDownMonitor([this](const KeyEvent &event) { return keyDownEventHandler(event); });
    }
}

AppManager::AppManager(URL configurationFileURL)
    : configurationFileURL_(std::move(configurationFileURL)),
      configuration_(std::make_shared<ConfigurationSlot>(
          ConfigurationFile(configurationFileURL_).retrieveConfiguration())),
      terminate_([] {}),
      contentManager_(ContentManager::shared()) {}

AppManager::~AppManager() = default;

std::shared_ptr<ActionSetManager> AppManager::actionSetManager() const {
    const std::lock_guard lock(mutex_);
    return actionSetManager_;
}

void AppManager::setActionSetManager(std::shared_ptr<ActionSetManager> actionSetManager) {
    const std::lock_guard lock(mutex_);
    actionSetManager_.swap(actionSetManager);
}

std::shared_ptr<const Configuration> AppManager::retrieveConfigurationForReload() const {
    auto configuration = ConfigurationFile(configurationFileURL_).retrieveConfiguration();
    configuration->requireSlidesFor(launchConfiguration()->_window()._onScreen());
    if (!configuration->hasSameWindow(*launchConfiguration())) {
        Logger::warning("The section 'Window' is not that of the launch: what has changed in it, apart from "
                        "'MenuBarSize', takes effect at the next launch");
    }
    return configuration;
}

void AppManager::reloadInterface(bool byResetingVariables) {
    const auto logFault = [] {
        Logger::error([exception = std::current_exception()] { return textOf(exception); });
    };
    try {
        configuration_->replacePresent(retrieveConfigurationForReload());
    } catch (...) {
        logFault();
    }
    if (!byResetingVariables) {
        return;
    }
    try {
        const auto present = configuration();
        const ExpressionsBook<std::string> &book = present->_general()._variables();
        VariableNames names;
        for (const auto &[name, value] : book.models()) {
            names.insert(name);
        }
        contentManager_->resetVariables(names, book);
    } catch (...) {
        logFault();
    }
}

bool AppManager::keyDownEventHandler(const KeyEvent &event) const {
    const KeyModifiers &held = event.modifiers;
    if (!(held.command && held.control && held.option && held.shift)) {
        return false;
    }
    const std::string key = configuration()->_appTermination()._forceQuitShortcutKey();
    if (charactersInUpperCase(key) != charactersInUpperCase(event.characters)) {
        return false;
    }
    Logger::info("Force quit shortcut detected. Forcing the application termination");
    terminate_();
    return true;
}

} // namespace velmar
