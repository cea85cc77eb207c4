#pragma once

#include <Actions/ActionDispatcher.h>
#include <Admission/LaunchOptions.h>
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
#include <System/IdentityAuthority.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {

class CustomWindowAppDelegateService;
class TriggerNotificationActionsManager;
struct Services;

/// The delegate of the application. Creates the shared AppManager at the first event and forwards all events
/// to the services. Created after the application and destroyed before it.
class AppDelegate final : public ServiceableAppDelegate {
public:
    /// The command that started the process.
    struct Launch {
        LaunchOptions options;
        std::string executable; ///< Absolute path.
    };

    /// The references must outlive the delegate.
    AppDelegate(DesktopApplication &application, const Services &services,
                const IdentityAuthority &identityAuthority, Launch launch);
    ~AppDelegate() override;

    /// Returns the services. Each call creates all of them except the first.
    [[nodiscard]] std::vector<std::shared_ptr<AppDelegateService>> services() override;

    /// Loads the configuration, registers its variables and action sets, and enables the population of texts
    /// before any service runs. If the configuration is refused, shows an alert and ends the process.
    void applicationWillFinishLaunching() override;
    void applicationDidFinishLaunching() override;
    /// Runs the termination script, then returns true.
    bool applicationShouldTerminate() override;
    void applicationWillTerminate() override;
    bool applicationShouldTerminateAfterLastWindowClosed() override;

    /// Terminates the application if no window remains. The desktop reports only windows closed by the user.
    void openedWindowDidClose();

private:
    void shareActionDispatcher();
    void makeAppManager();
    void makeActionSetManager();
    [[nodiscard]] std::vector<std::string> relaunchCommand() const;

    Config<WindowSection::OnScreen> _onScreen = LaunchWindow::onScreen();
    DesktopApplication &application_;
    const Services &services_;
    const IdentityAuthority &identityAuthority_;
    Launch launch_;
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
