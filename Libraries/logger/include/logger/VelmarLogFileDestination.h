#pragma once

#include <optional>
#include <string_view>

#include <logger/FileDestination.h>
#include <logger/VelmarLogDestination.h>

namespace velmar {

/// The application's throw-away log, /tmp/{userName}-velmar.log. A user name that cannot be a file's name
/// loses it.
class VelmarLogFileDestination : public VelmarLogDestination {
public:
    /// The owner is the user of that name, for a process that may be root's.
    VelmarLogFileDestination(std::string_view displayName, std::string_view userName,
                             std::optional<FileOwner> owner);

protected:
    VelmarLogFileDestination(std::string_view displayName, LogFileSettings logFile);
};

} // namespace velmar
