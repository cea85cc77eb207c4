#pragma once

#include <Configuration/ConfigurationEnum.h>

namespace velmar {

/// The interface of a device management server.
enum class MDMApi { jamf, jamfPro, airwatch };

constexpr auto casesOf(MDMApi) {
    return std::to_array<EnumCase<MDMApi>>(
        {{MDMApi::jamf, "Jamf"}, {MDMApi::jamfPro, "JamfPro"}, {MDMApi::airwatch, "Airwatch"}});
}

} // namespace velmar
