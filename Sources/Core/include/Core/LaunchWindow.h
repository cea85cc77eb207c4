#pragma once

#include <Configuration/Configuration.h>
#include <Settings/Config.h>

/// Returns a reader of the window section of the launch configuration. A reload rebuilds the content of the
/// window, but neither the window nor the mode. Thread-safe.
namespace velmar::LaunchWindow {

[[nodiscard]] inline Config<WindowSection> section() {
    return Config<WindowSection>::atLaunch(
        [](const Configuration &c) -> decltype(auto) { return c._window(); });
}

/// Returns a reader of the mode of the launch configuration. Thread-safe.
[[nodiscard]] inline Config<WindowSection::OnScreen> onScreen() {
    return Config<WindowSection::OnScreen>::atLaunch(
        [](const Configuration &c) -> decltype(auto) { return c._window()._onScreen(); });
}

} // namespace velmar::LaunchWindow
