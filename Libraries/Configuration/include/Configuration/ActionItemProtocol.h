#pragma once

#include <Configuration/ConditionKeyWrapper.h>

namespace velmar::ActionItems {

/// The kinds of actions; the names to use are those within ActionItem.
enum class TypeIdentifier {
    log,
    saveInput,
    sendRequest,
    displayAlert,
    executeCommand,
    executeScript,
    executeJamfPolicy,
    restartComputer,
    shutdownComputer,
    asleepComputer,
    logoutUser,
    playSound,
    terminateApp,
    copyToClipboard,
    openWindow,
    closeOpenWindow,
    navigateToSlide,
    displayNotification,
    updateVariable,
};

constexpr auto casesOf(TypeIdentifier) {
    return std::to_array<EnumCase<TypeIdentifier>>(
        {{TypeIdentifier::log, "Log"},
         {TypeIdentifier::saveInput, "SaveInputs"},
         {TypeIdentifier::sendRequest, "SendRequest"},
         {TypeIdentifier::displayAlert, "DisplayAlert"},
         {TypeIdentifier::executeCommand, "ExecuteCommand"},
         {TypeIdentifier::executeScript, "ExecuteScript"},
         {TypeIdentifier::executeJamfPolicy, "ExecuteJamfPolicy"},
         {TypeIdentifier::restartComputer, "RestartComputer"},
         {TypeIdentifier::shutdownComputer, "ShutdownComputer"},
         {TypeIdentifier::asleepComputer, "AsleepComputer"},
         {TypeIdentifier::logoutUser, "LogoutUser"},
         {TypeIdentifier::playSound, "PlaySound"},
         {TypeIdentifier::terminateApp, "TerminateApp"},
         {TypeIdentifier::copyToClipboard, "CopyToClipboard"},
         {TypeIdentifier::openWindow, "OpenWindow"},
         {TypeIdentifier::closeOpenWindow, "CloseOpenedWindow"},
         {TypeIdentifier::navigateToSlide, "NavigateToSlide"},
         {TypeIdentifier::displayNotification, "DisplayNotification"},
         {TypeIdentifier::updateVariable, "UpdateVariable"}});
}

/// The key that every action begins with.
struct ActionItemProtocol {
    using IsKeyGroup = void;

    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: always run.
};

} // namespace velmar::ActionItems
