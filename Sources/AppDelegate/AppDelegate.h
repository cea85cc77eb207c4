#pragma once

#include <Actions/ActionDispatcher.h>
#include <Admission/LaunchOptions.h>
#include <AppDelegate/OpenedWindow.h>
#include <AppDelegate/ServiceableAppDelegate.h>
#include <Base/Shared.h>
#include <Configuration/Configuration.h>
#include <Configuration/Plugin.h>
#include <Core/AppManager.h>
#include <Core/LaunchWindow.h>
#include <Settings/Config.h>
#include <Termination/AppTerminationManager.h>
#include <Termination/TerminationScript.h>
#include <Views/Content/ContentView/ContentViewModel.h>

#include <Desktop/DesktopApplication.h>
#include <Interaction/AlertPresenter.h>
#include <System/IdentityAuthority.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {

class CustomWindowAppDelegateService;
class RunningApplications;
class SimplePasteboard;
class SoundPlayer;
class TriggerNotificationActionsManager;
class UserNotifications;

/// The application's delegate: makes the shared AppManager at the first event, and has the services of the
/// chain do the rest. Made after the application, and destroyed before it.
class AppDelegate final : public ServiceableAppDelegate {
public:
    /// What the delegate works with; the references must outlive it.
    struct Surroundings {
        DesktopApplication &application;
        AlertPresenter &alerts;
        SimplePasteboard &pasteboard;
        SoundPlayer &sounds;
        UserNotifications &notifications;
        RunningApplications &runningApplications;
        const IdentityAuthority &identityAuthority;
        LaunchOptions options;
        /// The absolute path of the program.
        std::string executable;
    };

    explicit AppDelegate(Surroundings surroundings);
    ~AppDelegate() override;

    /// All but the first are new at each reading.
    [[nodiscard]] std::vector<std::shared_ptr<AppDelegateService>> services() override;

    /// Ends the process behind an alert if there is no configuration to be admitted. Otherwise registers its
    /// variables, sorts its sets of actions and has texts populated from then on, before any service runs.
    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    /// Runs the script of the termination first. Always true.
    bool applicationShouldTerminate() override;
    void applicationWillTerminate() override;
    bool applicationShouldTerminateAfterLastWindowClosed() override;

private:
    void shareActionDispatcher();
    void makeAppManager();
    void makeActionSetManager();
    void openedWindowDidClose();
    [[nodiscard]] std::vector<std::string> relaunchCommand() const;

    Config<WindowSection::OnScreen> _onScreen = LaunchWindow::onScreen();
    Surroundings surroundings_;
    OpenedWindow openedWindow_;
    std::optional<Shared<ActionDispatcher>::Scope> actionDispatcher_;
    std::shared_ptr<TriggerNotificationActionsManager> notificationActions_;
    std::shared_ptr<AppTermination> terminationService_;
    std::optional<Shared<AppTerminationManager>::Scope> appTerminationManager_;
    TerminationScript terminationScript_;
    std::shared_ptr<CustomWindowAppDelegateService> customWindow_;
    std::optional<AppManager::Scope> appManager_;
    std::optional<Plugins::Registration> populatePlugin_;
};

} // namespace velmar
