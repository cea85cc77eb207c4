#pragma once

#include <optional>
#include <string_view>

#include <logger/FileDestination.h>
#include <logger/VelmarLogDestination.h>

namespace velmar {

/// Writes the application's temporary log, /tmp/{userName}-velmar.log. Writes nothing if the user name is not
/// a valid file name.
class VelmarLogFileDestination : public VelmarLogDestination {
public:
    /// `owner` is the user of that name, for a process that may run as root.
    VelmarLogFileDestination(std::string_view displayName, std::string_view userName,
                             std::optional<FileOwner> owner);

protected:
    VelmarLogFileDestination(std::string_view displayName, LogFileSettings logFile);
};

} // namespace velmar
