#pragma once

#include <AppDelegate/AppDelegateService.h>
#include <Configuration/Configuration.h>
#include <Settings/Config.h>

#include <Desktop/LoginItem.h>

#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// Decides at each start whether the application comes back at the next login.
class LoginRelaunchAppDelegateService final : public AppDelegateService {
public:
    /// `command` starts the application again as it was started.
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
