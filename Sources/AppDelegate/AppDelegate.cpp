#include <AppDelegate/AppDelegate.h>

#include <Actions/ActionContext.h>
#include <Actions/ActionSetManager.h>
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
#include <Base/Services.h>
#include <Core/TriggerNotificationActionsManager.h>
#include <Termination/AppTerminationService.h>
#include <Variables/ContentManager.h>
#include <Variables/PopulatePlugin.h>
#include <Views/CustomViews/Theme.h>

#include <Desktop/DesktopAppearance.h>
#include <Desktop/KeyEventMonitor.h>
#include <Desktop/Window.h>
#include <Foundation/UserDefaults.h>
#include <Interaction/AlertPresenter.h>
#include <logger/Logger.h>

#include <QGuiApplication>

#include <cstdlib>
#include <functional>
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

AppDelegate::AppDelegate(DesktopApplication &application, const Services &services,
                         const IdentityAuthority &identityAuthority, Launch launch)
    : application_(application),
      services_(services),
      identityAuthority_(identityAuthority),
      launch_(std::move(launch)),
      terminationScript_([&application] { return application.isTerminationDemanded(); }) {
    QCoreApplication::setApplicationName(QStringLiteral("Velmar"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.nurvan.velmar"));
    Theme::install(application.appearance());
    Localization::install();
    shareActionDispatcher();
    notificationActions_ = TriggerNotificationActionsManager::make(services_.notifications);
    terminationService_ = std::make_shared<AppTerminationService>(
        services_.mainQueue, [&application] { application.terminate(); });
    const auto terminationManager =
        std::make_shared<AppTerminationManager>(terminationService_, services_.variables);
    appTerminationManager_.emplace(terminationManager);
    customWindow_ = std::make_shared<CustomWindowAppDelegateService>(
        services_,
        VelmarViewController::Application{
            .terminationManager = *terminationManager,
            .reloadInterface =
                [](bool byResetingVariables) { AppManager::shared()->reloadInterface(byResetingVariables); }},
        CustomWindowAppDelegateService::Desktop{
            .mainMenu = application.mainMenu(),
            .appearance = application.appearance(),
            .didPaint = [] { Logger::debug("First paint"); },
            .didPresent = [&application] { application.appearance().followSettingsService(); }});
    application.mainMenu().setItems(ApplicationMenu::items(
        {.quit = [terminationManager] { terminationManager->tryToQuitApplication(); },
         .reloadInterfaceSavingVariables = [window = customWindow_] { window->reloadInterface(false); },
         .reloadInterfaceResetingVariables = [window = customWindow_] { window->reloadInterface(true); }}));
}

AppDelegate::~AppDelegate() {
    // Cleared first: the entries own the window, whose menu bar observes the entries.
    application_.mainMenu().setItems({});
}

std::vector<std::shared_ptr<AppDelegateService>> AppDelegate::services() {
    return {customWindow_,
            std::make_shared<ApplicationTerminationAppDelegateService>(application_.mainMenu()),
            std::make_shared<AdminModeAppDelegateService>(application_.mainMenu()),
            std::make_shared<ActionSetsAppDelegateService>(),
            std::make_shared<LoginRelaunchAppDelegateService>(LoginItem(), relaunchCommand())};
}

void AppDelegate::applicationWillFinishLaunching() {
    try {
        makeAppManager();
    } catch (const std::exception &error) {
        const ConfigurationRefusal refusal{.alert =
                                               [this](const std::string &message, const std::string &button) {
                                                   services_.alerts.runModal({.style = Alert::Style::critical,
                                                                              .messageText = message,
                                                                              .informativeText = {},
                                                                              .buttons = {button}});
                                               },
                                           // Skips destructors: Qt objects are still in use.
                                           .exit = [](int status) { std::_Exit(status); }};
        refusal.exitBecauseOf(error);
    }
    ContentManager::shared()->registerVariables(*AppManager::shared()->configuration());
    makeActionSetManager();
    populatePlugin_.emplace(Plugins::registerPlugin(std::make_shared<const PopulatePlugin>()));
    ServiceableAppDelegate::applicationWillFinishLaunching();
}

void AppDelegate::shareActionDispatcher() {
    const auto context = std::make_shared<const ActionContext>(ActionContext{
        .services = services_,
        // Read at the time of the call: the termination service is created after the dispatcher.
        .terminateApp = [this] { services_.mainQueue.async([this] { terminationService_->terminate(); }); }});
    actionDispatcher_.emplace(std::make_shared<ActionDispatcher>(std::bind_front(&dispatchable, context)));
}

void AppDelegate::openedWindowDidClose() {
    const Window *const window = customWindow_->window();
    if (window != nullptr && !window->isVisible() && applicationShouldTerminateAfterLastWindowClosed()) {
        application_.terminate();
    }
}

void AppDelegate::makeActionSetManager() {
    AppManager::shared()->setActionSetManager(
        ActionSetManager::make(ActionSetManager::configuredActionSets().wrappedValue(), services_));
}

void AppDelegate::makeAppManager() {
    UserDefaults defaults(Domain::defaultsSuite);
    const ConfigurationLocator locator(launch_.options, defaults, FileManager::defaultManager());
    appManager_.emplace(std::make_shared<AppManager>(
        locator, identityAuthority_,
        AppManager::ForceQuit{.addKeyDownMonitor = &addKeyDownMonitor,
                              .terminate = [this] { application_.terminate(); }}));
}

void AppDelegate::applicationDidFinishLaunching() {
    ServiceableAppDelegate::applicationDidFinishLaunching();
    Logger::debug("Application did finish launching");
}

bool AppDelegate::applicationShouldTerminate() {
    // Uncovered first: the script may show a window, and waiting for it blocks the main thread.
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
    // A window shown instead of the status item is the only interface: closing it must end the application.
    return customWindow_->window() != nullptr || _onScreen() != WindowSection::OnScreen::menuBar;
}

std::vector<std::string> AppDelegate::relaunchCommand() const {
    // Only the configuration's name is kept: other arguments may be secrets.
    std::vector<std::string> command{launch_.executable};
    if (launch_.options.configuration) {
        command.insert(command.end(), {"-c", *launch_.options.configuration});
    }
    return command;
}

} // namespace velmar
