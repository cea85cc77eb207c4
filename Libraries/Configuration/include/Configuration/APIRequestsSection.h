#pragma once

#include <Configuration/KeyWrapper.h>
#include <Configuration/MDMApi.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct APIRequestItem;
template <class T>
class Book;

/// Device management servers, and the models of requests to them.
struct APIRequestsSection {
    static constexpr std::string_view typeName = "APIRequestsSection";

    KeyWrapper<std::optional<std::string>> _jamfBaseURL{"JamfBaseURL", optional};
    KeyWrapper<std::optional<std::string>> _jamfProBaseURL{"JamfProBaseURL", optional};
    KeyWrapper<std::optional<std::string>> _airwatchBaseURL{"AirwatchBaseURL", optional};
    KeyWrapper<std::optional<MDMApi>> _defaultMDMApi{"DefaultMDMApi", optional};
    KeyWrapper<Book<APIRequestItem>> _models{"Models", optional};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
