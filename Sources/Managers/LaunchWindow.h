#pragma once

#include <Configuration/Configuration.h>
#include <Managers/Config.h>

/// The section of the window as it was at the launch: a reload rebuilds what is inside the window, but not
/// the window, and the mode stays for the life of the process. Any thread.
namespace velmar::LaunchWindow {

[[nodiscard]] inline Config<WindowSection> section() {
    return Config<WindowSection>([](const Configuration & /*present*/) {
        return AppManager::shared()->launchConfiguration()->_window();
    });
}

[[nodiscard]] inline Config<WindowSection::OnScreen> onScreen() {
    return Config<WindowSection::OnScreen>([](const Configuration & /*present*/) {
        return AppManager::shared()->launchConfiguration()->_window()._onScreen();
    });
}

} // namespace velmar::LaunchWindow
