#include <logger/VelmarLogFileDestination.h>

#include <memory>
#include <string>
#include <utility>

#include <logger/VelmarLogFilePermanentDestination.h>

namespace velmar {

namespace {

bool isFileName(std::string_view name) {
    return !name.empty() && name != "." && name != ".." && name.find('/') == std::string_view::npos &&
           name.find('\0') == std::string_view::npos;
}

LogFileSettings throwAwayFile(std::string_view userName, std::optional<FileOwner> owner) {
    if (!isFileName(userName)) {
        return {};
    }
    return {.logFileURL = "/tmp/" + std::string(userName) + "-velmar.log", .owner = owner};
}

LogFileSettings permanentFile(std::string_view userName, std::optional<FileOwner> owner) {
    if (!isFileName(userName)) {
        return {};
    }
    const auto home = std::filesystem::path("/Users") / userName;
    return {.logFileURL = home / "Library/Logs/Velmar/velmar.log", .requiredFolder = home, .owner = owner};
}

} // namespace

VelmarLogFileDestination::VelmarLogFileDestination(std::string_view displayName, LogFileSettings logFile)
    : VelmarLogDestination(std::make_unique<FileDestination>(std::move(logFile)), displayName) {}

VelmarLogFileDestination::VelmarLogFileDestination(std::string_view displayName, std::string_view userName,
                                                   std::optional<FileOwner> owner)
    : VelmarLogFileDestination(displayName, throwAwayFile(userName, owner)) {}

VelmarLogFilePermanentDestination::VelmarLogFilePermanentDestination(std::string_view displayName,
                                                                     std::string_view userName,
                                                                     std::optional<FileOwner> owner)
    : VelmarLogFileDestination(displayName, permanentFile(userName, owner)) {}

} // namespace velmar
