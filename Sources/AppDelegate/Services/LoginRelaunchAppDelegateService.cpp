#include <AppDelegate/Services/LoginRelaunchAppDelegateService.h>

#include <fmt/core.h>
#include <logger/Logger.h>

#include <utility>

namespace velmar {

LoginRelaunchAppDelegateService::LoginRelaunchAppDelegateService(LoginItem loginItem,
                                                                 std::vector<std::string> command,
                                                                 std::optional<bool> relaunchAtLogin)
    : loginItem_(std::move(loginItem)), command_(std::move(command)) {
    _relaunchAtLogin.setOverrideValue(relaunchAtLogin);
}

void LoginRelaunchAppDelegateService::applicationDidFinishLaunching() {
    try {
        if (_relaunchAtLogin()) {
            loginItem_.enable(command_);
        } else {
            loginItem_.disable();
        }
    } catch (const FileError &error) {
        Logger::error(
            [&] { return fmt::format("Unable to set the relaunch at login. {}", error.errorDescription()); });
    }
}

} // namespace velmar
