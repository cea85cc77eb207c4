#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>

#include <Desktop/LoginItem.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Enables or disables the launch of the application at the next login, at each start.
class LoginRelaunchAppDelegateService final : public AppDelegateService {
public:
    /// `command` is the command to launch the application at login. `relaunchAtLogin` overrides the
    /// configuration.
    LoginRelaunchAppDelegateService(LoginItem loginItem, std::vector<std::string> command,
                                    std::optional<bool> relaunchAtLogin = std::nullopt);

    void applicationDidFinishLaunching() override;

private:
    Config<bool> _relaunchAtLogin{
        [](const Configuration &c) -> decltype(auto) { return c._appTermination()._relaunchAtLogin(); }};
    LoginItem loginItem_;
    std::vector<std::string> command_;
};

} // namespace velmar
