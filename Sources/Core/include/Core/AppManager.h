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

/// Owns the decoded configuration, which a reload replaces as a whole. One instance is shared by the process;
/// it is made in the first launching event. Main thread, but for `configuration()`, `actionSetManager()` and
/// `shared()`, which any thread calls.
class AppManager {
public:
    using PopulatePlugin = velmar::PopulatePlugin;

    /// The four modifier keys of the force quit shortcut.
    struct KeyModifiers {
        bool command = false;
        bool control = false;
        bool option = false;
        bool shift = false;
    };

    /// A key pressed while the application is active; a modifier key alone makes no event.
    struct KeyEvent {
        std::string characters; ///< What the key gives without its modifiers, UTF-8.
        KeyModifiers modifiers;
    };

    /// True if the event goes no further.
    using KeyDownHandler = std::function<bool(const KeyEvent &)>;

    /// A running monitor of key-down events; letting go of it removes it.
    using KeyDownMonitor = std::shared_ptr<void>;

    /// The functions behind the force quit shortcut.
    struct ForceQuit {
        /// Starts a monitor whose handler sees each key-down event of the application before anything else
        /// does.
        std::function<KeyDownMonitor(KeyDownHandler)> addKeyDownMonitor;
        /// Ends the application by its regular way, past the conditions that hold a quit back.
        std::function<void()> terminate;
    };

    /// Finds, admits and decodes the configuration, then starts the monitor of the force quit shortcut unless
    /// the configuration switches it off. A reload resets the variables of `contentManager`. Throws whatever
    /// refuses the configuration: VelmarError, ConfigurationError, PropertyListError.
    AppManager(const ConfigurationLocator &locator, const IdentityAuthority &identityAuthority,
               ForceQuit forceQuit,
               std::shared_ptr<ContentManager> contentManager = ContentManager::shared());

    /// Decodes a file that has been admitted elsewhere, for a process that only shows it: no shortcut ends
    /// the process. Throws what `ConfigurationFile::retrieveConfiguration` throws.
    explicit AppManager(URL configurationFileURL);

    ~AppManager();
    AppManager(const AppManager &) = delete;
    AppManager &operator=(const AppManager &) = delete;

    /// Shares a manager and its configuration with the process, for as long as the scope lives.
    class Scope {
    public:
        explicit Scope(const std::shared_ptr<AppManager> &manager)
            : configuration_(manager->configuration_), manager_(manager) {}

    private:
        Shared<ConfigurationSlot>::Scope configuration_;
        Shared<AppManager>::Scope manager_;
    };

    /// The process's instance. Throws VelmarError::InternalError outside any Scope.
    [[nodiscard]] static std::shared_ptr<AppManager> shared() { return Shared<AppManager>::instance(); }

    /// The present configuration, never null. Any thread.
    [[nodiscard]] std::shared_ptr<const Configuration> configuration() const {
        return configuration_->present();
    }

    /// The configuration that the process was launched with, never null: a reload changes neither the mode
    /// nor the window that stands on the screen. Any thread.
    [[nodiscard]] const std::shared_ptr<const Configuration> &launchConfiguration() const noexcept {
        return configuration_->atLaunch();
    }

    /// The admitted file, which a reload reads again.
    [[nodiscard]] const URL &configurationFileURL() const noexcept { return configurationFileURL_; }

    /// Who fires the sets of actions; null until the start has come so far. Any thread.
    [[nodiscard]] std::shared_ptr<ActionSetManager> actionSetManager() const;
    /// Once, during the start; it stays as long as the application manager.
    void setActionSetManager(std::shared_ptr<ActionSetManager> actionSetManager);

    /// Reads the configuration's file again and replaces the configuration; the file was admitted at the
    /// start and is not judged again. A failure is logged and leaves the configuration as it is; one without
    /// slides for the mode of the launch is a failure. Then, if
    /// asked for, gives the variables of General.Variables the values of the present configuration again, be
    /// it the new one or not. Never throws.
    void reloadInterface(bool byResetingVariables);

    /// Ends the application if the event is the force quit shortcut: all four modifiers (and any others) with
    /// the keys of AppTermination.ForceQuitShortcutKey, as sets of characters in upper case. True if it was.
    bool keyDownEventHandler(const KeyEvent &event) const;

private:
    /// Throws what the reading throws.
    [[nodiscard]] std::shared_ptr<const Configuration> retrieveConfigurationForReload() const;

    mutable std::mutex mutex_; // Guards the pointer actionSetManager_.
    std::shared_ptr<ActionSetManager> actionSetManager_;
    URL configurationFileURL_;
    std::shared_ptr<ConfigurationSlot> configuration_;
    std::function<void()> terminate_;
    std::shared_ptr<ContentManager> contentManager_;
    KeyDownMonitor keyDownMonitor_;
};

} // namespace velmar
