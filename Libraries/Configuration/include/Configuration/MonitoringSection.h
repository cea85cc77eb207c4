#pragma once

#include <Configuration/KeyWrapper.h>

namespace velmar {

/// The logs of the management agents, and what is heard when all is installed.
struct MonitoringSection {
    static constexpr std::string_view typeName = "MonitoringSection";

    KeyWrapper<std::optional<std::string>> _jamfLogPath{"JamfLogPath", optional};
    KeyWrapper<std::optional<std::string>> _airwatchInstallingLogPath{"AirWatchManagedSoftwareUpdateLogPath",
                                                                      optional};
    KeyWrapper<std::optional<std::string>> _airwatchInstalledLogPath{"AirWatchInstallLogPath", optional};
    KeyWrapper<std::optional<std::string>> _installationCompleteSound{
        "InstallationCompleteSoundNameOrFilePath", optional};
};

} // namespace velmar
