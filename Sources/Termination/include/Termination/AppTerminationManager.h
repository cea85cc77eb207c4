#pragma once

#include <Foundation/NotificationCenter.h>
#include <Settings/Config.h>
#include <Termination/AppTerminationService.h>
#include <Variables/ContentUpdater.h>

#include <memory>

namespace velmar {

/// Interface that decides whether the user may quit the application. Main thread.
class AppTerminationManagerProtocol {
public:
    virtual ~AppTerminationManagerProtocol() = default;
    /// Begins the termination if the user may quit.
    virtual void tryToQuitApplication() = 0;
};

/// Lets the user quit if the mandatory files are present and the installation is complete. The configuration
/// may waive the second condition. Both are true initially. The application shares one instance. Main thread.
class AppTerminationManager final : public AppTerminationManagerProtocol {
public:
    /// `notificationCenter` must outlive the manager. `terminationService` and `variables` must not be null.
    AppTerminationManager(std::shared_ptr<AppTermination> terminationService,
                          const std::shared_ptr<ContentManagerProtocol> &variables,
                          NotificationCenter &notificationCenter = NotificationCenter::defaultCenter(),
                          Config<bool> userCanQuitIfInstallationIsIncomplete = configuredPermission());

    [[nodiscard]] static std::shared_ptr<AppTerminationManager> shared() {
        return Shared<AppTerminationManager>::instance();
    }

    /// Begins the termination, or posts and logs the reason for the refusal.
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
