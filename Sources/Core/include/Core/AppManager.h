#pragma once

#include <Admission/ConfigurationLocator.h>
#include <Base/Shared.h>
#include <Foundation/URL.h>
#include <Settings/ConfigurationSlot.h>
#include <Variables/ContentManager.h>

#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace velmar {

struct Configuration;
class ActionSetManager;
class IdentityAuthority;
class PopulatePlugin;

/// Owns the decoded configuration, which a reload replaces as a whole. The process shares one instance, which
/// is created in the first launch event. Main thread, except for the functions marked "Any thread".
class AppManager {
public:
    using PopulatePlugin = velmar::PopulatePlugin;

    /// Modifier keys of the force quit shortcut.
    struct KeyModifiers {
        bool command = false;
        bool control = false;
        bool option = false;
        bool shift = false;
    };

    /// A key press while the application is active. A modifier key alone causes no event.
    struct KeyEvent {
        std::string characters; ///< Text of the key without modifiers, UTF-8.
        KeyModifiers modifiers;
    };

    /// Returns true if the event is consumed.
    using KeyDownHandler = std::function<bool(const KeyEvent &)>;

    /// A monitor of key-down events, removed on destruction.
    using KeyDownMonitor = std::shared_ptr<void>;

    /// Functions used for the force quit shortcut.
    struct ForceQuit {
        /// Starts a monitor whose handler receives each key-down event of the application first.
        std::function<KeyDownMonitor(KeyDownHandler)> addKeyDownMonitor;
        /// Begins the regular termination without the conditions of a quit.
        std::function<void()> terminate;
    };

    /// Finds, admits and decodes the configuration, then starts the monitor of the force quit shortcut unless
    /// the configuration disables it. A reload can reset the variables of `contentManager`. Throws
    /// VelmarError, ConfigurationError or PropertyListError if the configuration is refused.
    AppManager(const ConfigurationLocator &locator, const IdentityAuthority &identityAuthority,
               ForceQuit forceQuit,
               std::shared_ptr<ContentManager> contentManager = ContentManager::shared());

    /// Decodes a file without checking its permissions, for a process that only displays it. There is no
    /// force quit shortcut. Throws the errors of ConfigurationFile::retrieveConfiguration().
    explicit AppManager(URL configurationFileURL);

    ~AppManager();
    AppManager(const AppManager &) = delete;
    AppManager &operator=(const AppManager &) = delete;

    /// Shares a manager and its configuration with the process for the lifetime of the scope.
    class Scope {
    public:
        explicit Scope(const std::shared_ptr<AppManager> &manager)
            : configuration_(manager->configuration_), manager_(manager) {}

    private:
        Shared<ConfigurationSlot>::Scope configuration_;
        Shared<AppManager>::Scope manager_;
    };

    /// Returns the shared instance. Any thread. Throws VelmarError::InternalError outside any Scope.
    [[nodiscard]] static std::shared_ptr<AppManager> shared() { return Shared<AppManager>::instance(); }

    /// Returns the present configuration, never null. Any thread.
    [[nodiscard]] std::shared_ptr<const Configuration> configuration() const {
        return configuration_->present();
    }

    /// Returns the launch configuration, never null. It determines the mode and the window, which a reload
    /// doesn't change. Any thread.
    [[nodiscard]] const std::shared_ptr<const Configuration> &launchConfiguration() const noexcept {
        return configuration_->atLaunch();
    }

    /// Returns the URL of the configuration file, which a reload reads again.
    [[nodiscard]] const URL &configurationFileURL() const noexcept { return configurationFileURL_; }

    /// Returns the manager of the action sets, nullptr until setActionSetManager() is called. Any thread.
    [[nodiscard]] std::shared_ptr<ActionSetManager> actionSetManager() const;
    /// Sets the manager of the action sets, which this object then owns. Called once, during start-up.
    void setActionSetManager(std::shared_ptr<ActionSetManager> actionSetManager);

    /// Reads the configuration file again and replaces the configuration. The permissions of the file are not
    /// checked again. A failure is logged and leaves the configuration unchanged; a configuration without
    /// slides for the mode of the launch is a failure. If `byResetingVariables` is true, then resets the
    /// variables of General.Variables to the values in the present configuration, even after a failure. Never
    /// throws.
    void reloadInterface(bool byResetingVariables);

    /// Terminates the application and returns true if the event is the force quit shortcut: all four
    /// modifiers with the key of AppTermination.ForceQuitShortcutKey, compared as sets of upper-case
    /// characters. Other modifiers are ignored.
    bool keyDownEventHandler(const KeyEvent &event) const;

private:
    /// Reads the configuration and checks its slides. Throws the errors of both steps.
    [[nodiscard]] std::shared_ptr<const Configuration> retrieveConfigurationForReload() const;

    mutable std::mutex mutex_; // Guards actionSetManager_.
    std::shared_ptr<ActionSetManager> actionSetManager_;
    URL configurationFileURL_;
    std::shared_ptr<ConfigurationSlot> configuration_;
    std::function<void()> terminate_;
    std::shared_ptr<ContentManager> contentManager_;
    KeyDownMonitor keyDownMonitor_;
};

} // namespace velmar
