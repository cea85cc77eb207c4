#pragma once

#include <Configuration/ConfigurationEnum.h>

#include <array>

namespace velmar {

/// The variables maintained by the application; their raw strings are the names. They are always defined.
enum class Placeholders {
    velmarDirectory,
    userName,
    userFullName,
    userFirstName,
    userLastName,
    deviceModelName,
    deviceMarketingModelName,
    deviceName,
    deviceSerialNumber,
    deviceUUID,
    deviceProcessor,
    currentSlideValid,
    currentSlideIndex,
    installationComplete,
    installedAppMonitorsCount,
    notInstalledAppMonitorCount,
    failedToInstallMonitorsCount,
    monitorsCount,
    mandatoryFilesPresent,
};

constexpr auto casesOf(Placeholders) {
    using enum Placeholders;
    return std::to_array<EnumCase<Placeholders>>({
        {velmarDirectory, "VELMAR_DIRECTORY"},
        {userName, "USER_NAME"},
        {userFullName, "USER_FULL_NAME"},
        {userFirstName, "USER_FIRST_NAME"},
        {userLastName, "USER_LAST_NAME"},
        {deviceModelName, "DEVICE_MODEL_NAME"},
        {deviceMarketingModelName, "DEVICE_MARKETING_MODEL_NAME"},
        {deviceName, "DEVICE_NAME"},
        {deviceSerialNumber, "DEVICE_SERIAL_NUMBER"},
        {deviceUUID, "DEVICE_UUID"},
        {deviceProcessor, "DEVICE_PROCESSOR"},
        {currentSlideValid, "CURRENT_SLIDE_VALID"},
        {currentSlideIndex, "CURRENT_SLIDE_INDEX"},
        {installationComplete, "INSTALLATION_COMPLETE"},
        {installedAppMonitorsCount, "INSTALLED_MONITORS_COUNT"},
        {notInstalledAppMonitorCount, "NOT_INSTALLED_MONITORS_COUNT"},
        {failedToInstallMonitorsCount, "FAILED_INSTALL_MONITORS_COUNT"},
        {monitorsCount, "MONITORS_COUNT"},
        {mandatoryFilesPresent, "ALL_MANDATORY_FILES_PRESENT"},
    });
}

} // namespace velmar
