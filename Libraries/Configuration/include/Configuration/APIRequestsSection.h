#pragma once

#include <Configuration/KeyWrapper.h>

namespace velmar {

/// The interface of a device management server.
enum class MDMApi { jamf, jamfPro, airwatch };

constexpr auto casesOf(MDMApi) {
    return std::to_array<EnumCase<MDMApi>>(
        {{MDMApi::jamf, "Jamf"}, {MDMApi::jamfPro, "JamfPro"}, {MDMApi::airwatch, "Airwatch"}});
}

/// The device management servers.
struct APIRequestsSection {
    static constexpr std::string_view typeName = "APIRequestsSection";

    KeyWrapper<std::optional<std::string>> _jamfBaseURL{"JamfBaseURL", optional};
    KeyWrapper<std::optional<std::string>> _jamfProBaseURL{"JamfProBaseURL", optional};
    KeyWrapper<std::optional<std::string>> _airwatchBaseURL{"AirwatchBaseURL", optional};
    KeyWrapper<std::optional<MDMApi>> _defaultMDMApi{"DefaultMDMApi", optional};
};

} // namespace velmar
