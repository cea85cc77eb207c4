#pragma once

#include <optional>
#include <string_view>

#include <logger/VelmarLogFileDestination.h>

namespace velmar {

/// Writes the application's permanent log, /Users/{userName}/Library/Logs/Velmar/velmar.log. Writes nothing
/// if /Users/{userName} doesn't exist; that folder is never created.
class VelmarLogFilePermanentDestination : public VelmarLogFileDestination {
public:
    VelmarLogFilePermanentDestination(std::string_view displayName, std::string_view userName,
                                      std::optional<FileOwner> owner);
};

} // namespace velmar
