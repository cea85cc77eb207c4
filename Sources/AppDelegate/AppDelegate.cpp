#include <AppDelegate/AppDelegate.h>

#include <Actions/ActionSetManager.h>
#include <Actions/ActionSurroundings.h>
#include <Actions/DispatchableItem.h>
#include <Admission/ConfigurationRefusal.h>
#include <AppDelegate/ApplicationMenu.h>
#include <AppDelegate/Localization.h>
#include <AppDelegate/Services/ActionSetsAppDelegateService.h>
#include <AppDelegate/Services/AdminModeAppDelegateService.h>
#include <AppDelegate/Services/ApplicationTerminationAppDelegateService.h>
#include <AppDelegate/Services/CustomWindowAppDelegateService.h>
#include <AppDelegate/Services/LoginRelaunchAppDelegateService.h>
#include <Base/Domain.h>
#include <Core/TriggerNotificationActionsManager.h>
#include <Termination/AppTerminationService.h>
#include <Variables/ContentManager.h>
#include <Variables/PopulatePlugin.h>
#include <Views/CustomViews/Theme.h>

#include <Desktop/DesktopAppearance.h>
#include <Desktop/KeyEventMonitor.h>
#include <Desktop/Window.h>
#include <Foundation/UserDefaults.h>
#include <logger/Logger.h>

#include <QGuiApplication>

#include <cstdlib>
#include <utility>

namespace velmar {

namespace {

AppManager::KeyDownMonitor addKeyDownMonitor(AppManager::KeyDownHandler handler) {
    return std::make_shared<KeyEventMonitor>(
        [handler = std::move(handler)](const KeyEventMonitor::Event &event) {
            return handler({.characters = event.charactersIgnoringModifiers,
                            .modifiers = {.command = event.command,
                                          .control = event.control,
                                          .option = event.option,
                                          .shift = event.shift}});
        });
}

} // namespace

AppDelegate::AppDelegate(Surroundings surroundings)
    : surroundings_(std::move(surroundings)),
      openedWindow_({.mainMenu = surroundings_.application.mainMenu(),
                     .mainQueue = surroundings_.application.mainQueue(),
                     .appearance = surroundings_.application.appearance(),
                     .screens = &Screens::current,
                     .didClose = [this] { openedWindowDidClose(); }}),
      terminationScript_(
          [&application = surroundings_.application] { return application.isTerminationDemanded(); }) {
    QCoreApplication::setApplicationName(QStringLiteral("Velmar"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.nurvan.velmar"));
    DesktopApplication &application = surroundings_.application;
    Theme::install(application.appearance());
    Localization::install();
    shareActionDispatcher();
    notificationActions_ = TriggerNotificationActionsManager::make(surroundings_.notifications);
    terminationService_ = std::make_shared<AppTerminationService>(
        application.mainQueue(), [&application] { application.terminate(); });
    const auto terminationManager = std::make_shared<AppTerminationManager>(
        AppTerminationManager::Surroundings{.terminationService = terminationService_});
    appTerminationManager_.emplace(terminationManager);
    customWindow_ =
        std::make_shared<CustomWindowAppDelegateService>(CustomWindowAppDelegateService::Surroundings{
            .mainMenu = application.mainMenu(),
            .screens = &Screens::current,
            .didPaint = [] { Logger::debug("First paint"); },
            .didPresent = [&application] { application.appearance().followSettingsService(); },
            .view = {.mainQueue = application.mainQueue(),
                     .appTerminationManager = *terminationManager,
                     .appearance = application.appearance(),
                     .alerts = surroundings_.alerts,
                     .reloadInterface = [](bool byResetingVariables) {
                         AppManager::shared()->reloadInterface(byResetingVariables);
                     }}});
    application.mainMenu().setItems(ApplicationMenu::items(
        {.quit = [terminationManager] { terminationManager->tryToQuitApplication(); },
         .reloadInterfaceSavingVariables = [window = customWindow_] { window->reloadInterface(false); },
         .reloadInterfaceResetingVariables = [window = customWindow_] { window->reloadInterface(true); }}));
}

AppDelegate::~AppDelegate() {
    // The entries hold the window, which holds the menu bar that watches the entries.
    surroundings_.application.mainMenu().setItems({});
}

std::vector<std::shared_ptr<AppDelegateService>> AppDelegate::services() {
    return {customWindow_,
            std::make_shared<ApplicationTerminationAppDelegateService>(surroundings_.application.mainMenu()),
            std::make_shared<AdminModeAppDelegateService>(surroundings_.application.mainMenu()),
            std::make_shared<ActionSetsAppDelegateService>(),
            std::make_shared<LoginRelaunchAppDelegateService>(LoginItem(), relaunchCommand())};
}

void AppDelegate::applicationWillFinishLaunching() {
    try {
        makeAppManager();
    } catch (const std::exception &error) {
        const ConfigurationRefusal refusal{.alert =
                                               [this](const std::string &message, const std::string &button) {
                                                   surroundings_.alerts.runModal(
                                                       {.style = Alert::Style::critical,
                                                        .messageText = message,
                                                        .informativeText = {},
                                                        .buttons = {button}});
                                               },
                                           // The toolkit's objects are still in use, so nothing is torn down.
                                           .exit = [](int status) { std::_Exit(status); }};
        refusal.exitBecauseOf(error);
    }
    ContentManager::shared()->registerVariables(*AppManager::shared()->configuration());
    makeActionSetManager();
    populatePlugin_.emplace(Plugins::registerPlugin(std::make_shared<const PopulatePlugin>()));
    ServiceableAppDelegate::applicationWillFinishLaunching();
}

void AppDelegate::shareActionDispatcher() {
    MainQueue &mainQueue = surroundings_.application.mainQueue();
    const auto actions = std::make_shared<const ActionSurroundings>(
        ActionSurroundings{.mainQueue = mainQueue,
                           .alerts = surroundings_.alerts,
                           .pasteboard = surroundings_.pasteboard,
                           .sounds = surroundings_.sounds,
                           .windows = openedWindow_,
                           .notifications = surroundings_.notifications,
                           // The service comes after the dispatcher, which it uses.
                           .terminateApp = [this, &mainQueue] {
                               mainQueue.async([this] { terminationService_->terminate(); });
                           }});
    actionDispatcher_.emplace(
        std::make_shared<ActionDispatcher>([actions](std::shared_ptr<const ActionItem> item) {
            return dispatchable(std::move(item), actions);
        }));
}

void AppDelegate::openedWindowDidClose() {
    // The desktop tells of the last window only when the user closes it.
    const Window *const window = customWindow_->window();
    if (window != nullptr && !window->isVisible() && applicationShouldTerminateAfterLastWindowClosed()) {
        surroundings_.application.terminate();
    }
}

void AppDelegate::makeActionSetManager() {
    AppManager::shared()->setActionSetManager(
        ActionSetManager::make(ActionSetManager::configuredActionSets().wrappedValue(),
                               {.runningApplications = surroundings_.runningApplications}));
}

void AppDelegate::makeAppManager() {
    UserDefaults defaults(Domain::defaultsSuite);
    appManager_.emplace(std::make_shared<AppManager>(AppManager::Surroundings{
        .locator = ConfigurationLocator(surroundings_.options, defaults, FileManager::defaultManager()),
        .identityAuthority = surroundings_.identityAuthority,
        .addKeyDownMonitor = &addKeyDownMonitor,
        .terminate = [this] { surroundings_.application.terminate(); }}));
}

void AppDelegate::applicationDidFinishLaunching() {
    ServiceableAppDelegate::applicationDidFinishLaunching();
    Logger::debug("Application did finish launching");
}

bool AppDelegate::applicationShouldTerminate() {
    // While the script is waited for, nobody could lift the cover, and the script may have something to show.
    customWindow_->uncoverScreens();
    terminationScript_.runBeforeTermination(AppTerminationManager::shared()->isInstallationComplete());
    return true;
}

void AppDelegate::applicationWillTerminate() {
    ServiceableAppDelegate::applicationWillTerminate();
    Logger::debug("Application will terminate");
    Logger::debug(std::string(81, '-'));
    Logger::debug("-");
}

bool AppDelegate::applicationShouldTerminateAfterLastWindowClosed() {
    // A window that stands in for the status item is all there is of the application: without it the process
    // would be left with nothing to be seen or ended by.
    return customWindow_->window() != nullptr || _onScreen() != WindowSection::OnScreen::menuBar;
}

std::vector<std::string> AppDelegate::relaunchCommand() const {
    // Of the arguments only the configuration's name: others may be secrets.
    std::vector<std::string> command{surroundings_.executable};
    if (surroundings_.options.configuration) {
        command.insert(command.end(), {"-c", *surroundings_.options.configuration});
    }
    return command;
}

} // namespace velmar
