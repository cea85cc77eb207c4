#include <Termination/AppTerminationManager.h>

#include <Base/LoggerExtensions.h>
#include <Configuration/Configuration.h>
#include <Termination/TerminationNotifications.h>

#include <utility>

namespace velmar {

AppTerminationManager::AppTerminationManager(Surroundings surroundings)
    : _userCanQuitIfInstallationIsIncomplete(std::move(surroundings.userCanQuitIfInstallationIsIncomplete)),
      terminationService_(std::move(surroundings.terminationService)),
      notificationCenter_(surroundings.notificationCenter),
      _isInstallationComplete(true, GeneralSection::Placeholders::installationComplete,
                              surroundings.contentManager),
      _areMandatoryFilesPresent(true, GeneralSection::Placeholders::mandatoryFilesPresent,
                                surroundings.contentManager) {}

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
