#pragma once

#include <Configuration/Configuration.h>
#include <Settings/Config.h>

/// The section of the window as it was at the launch: a reload rebuilds the content of the window, but
/// neither the window nor the mode. Any thread.
namespace velmar::LaunchWindow {

[[nodiscard]] inline Config<WindowSection> section() {
    return Config<WindowSection>::atLaunch(
        [](const Configuration &c) -> decltype(auto) { return c._window(); });
}

[[nodiscard]] inline Config<WindowSection::OnScreen> onScreen() {
    return Config<WindowSection::OnScreen>::atLaunch(
        [](const Configuration &c) -> decltype(auto) { return c._window()._onScreen(); });
}

} // namespace velmar::LaunchWindow
