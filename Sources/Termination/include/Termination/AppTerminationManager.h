#pragma once

#include <Foundation/NotificationCenter.h>
#include <Settings/Config.h>
#include <Termination/AppTerminationService.h>
#include <Variables/ContentUpdater.h>

#include <memory>

namespace velmar {

/// Who decides whether the application quits. Main thread.
class AppTerminationManagerProtocol {
public:
    virtual ~AppTerminationManagerProtocol() = default;
    virtual void tryToQuitApplication() = 0;
};

/// Lets the user quit when what the session is there for has been done: the installation is complete, unless
/// the configuration does without that, and the mandatory files are present. Both hold until a monitor knows
/// better. The application shares one. Main thread.
class AppTerminationManager final : public AppTerminationManagerProtocol {
public:
    /// The centre must outlive the manager.
    AppTerminationManager(std::shared_ptr<AppTermination> terminationService,
                          const std::shared_ptr<ContentManagerProtocol> &variables,
                          NotificationCenter &notificationCenter = NotificationCenter::defaultCenter(),
                          Config<bool> userCanQuitIfInstallationIsIncomplete = configuredPermission());

    [[nodiscard]] static std::shared_ptr<AppTerminationManager> shared() {
        return Shared<AppTerminationManager>::instance();
    }

    /// Begins the termination, or posts and logs why it doesn't.
    void tryToQuitApplication() override;

    [[nodiscard]] bool isInstallationComplete() const noexcept { return _isInstallationComplete(); }
    void setInstallationComplete(bool isComplete) { _isInstallationComplete.set(isComplete); }
    void setMandatoryFilesPresent(bool arePresent) { _areMandatoryFilesPresent.set(arePresent); }

private:
    [[nodiscard]] static Config<bool> configuredPermission();

    Config<bool> _userCanQuitIfInstallationIsIncomplete;
    std::shared_ptr<AppTermination> terminationService_;
    NotificationCenter &notificationCenter_;
    ContentUpdater<bool> _isInstallationComplete;
    ContentUpdater<bool> _areMandatoryFilesPresent;
};

} // namespace velmar
