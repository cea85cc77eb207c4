#pragma once

#include <optional>
#include <string_view>

#include <logger/VelmarLogFileDestination.h>

namespace velmar {

/// The application's permanent log, /Users/{userName}/Library/Logs/Velmar/velmar.log. Without a
/// /Users/{userName}, which is never created, nothing is written.
class VelmarLogFilePermanentDestination : public VelmarLogFileDestination {
public:
    VelmarLogFilePermanentDestination(std::string_view displayName, std::string_view userName,
                                      std::optional<FileOwner> owner);
};

} // namespace velmar
