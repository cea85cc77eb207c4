#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

struct MonitorItem;

/// The logs of the management agents, the sound of the completed installation, and the monitors.
struct MonitoringSection {
    static constexpr std::string_view typeName = "MonitoringSection";

    KeyWrapper<std::optional<std::string>> _jamfLogPath{"JamfLogPath", optional};
    KeyWrapper<std::optional<std::string>> _airwatchInstallingLogPath{"AirWatchManagedSoftwareUpdateLogPath",
                                                                      optional};
    KeyWrapper<std::optional<std::string>> _airwatchInstalledLogPath{"AirWatchInstallLogPath", optional};
    KeyWrapper<std::optional<std::string>> _installationCompleteSound{
        "InstallationCompleteSoundNameOrFilePath", optional};
    KeyWrapper<std::vector<MonitorItem>> _monitors{"Monitors", optional};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
