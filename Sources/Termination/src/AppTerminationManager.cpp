#include <Termination/AppTerminationManager.h>

#include <Base/LoggerExtensions.h>
#include <Configuration/Configuration.h>
#include <Termination/TerminationNotifications.h>

#include <utility>

namespace velmar {

AppTerminationManager::AppTerminationManager(std::shared_ptr<AppTermination> terminationService,
                                             const std::shared_ptr<ContentManagerProtocol> &variables,
                                             NotificationCenter &notificationCenter,
                                             Config<bool> userCanQuitIfInstallationIsIncomplete)
    : _userCanQuitIfInstallationIsIncomplete(std::move(userCanQuitIfInstallationIsIncomplete)),
      terminationService_(std::move(terminationService)),
      notificationCenter_(notificationCenter),
      _isInstallationComplete(true, GeneralSection::Placeholders::installationComplete, variables),
      _areMandatoryFilesPresent(true, GeneralSection::Placeholders::mandatoryFilesPresent, variables) {}

Config<bool> AppTerminationManager::configuredPermission() {
    return Config<bool>([](const Configuration &c) -> decltype(auto) {
        return c._navigation()._userCanQuitIfInstallationIsIncomplete();
    });
}

void AppTerminationManager::tryToQuitApplication() {
    if (!_isInstallationComplete() && !_userCanQuitIfInstallationIsIncomplete()) {
        notificationCenter_.post(TerminationNotifications::userTriesToQuitWhenNotAllMonitorsAreInstalled);
        LoggerExtensions::info(LogSubject::termination,
                               "App termination prevented since the installation is not complete");
    } else if (_areMandatoryFilesPresent()) {
        terminationService_->terminate();
    } else {
        notificationCenter_.post(TerminationNotifications::userTriesToQuitWhenNotAllMonitoredFilesArePresent);
        LoggerExtensions::info(LogSubject::termination,
                               "App termination prevented since at least one mandatory monitored file isn't "
                               "present on the device");
    }
}

} // namespace velmar
