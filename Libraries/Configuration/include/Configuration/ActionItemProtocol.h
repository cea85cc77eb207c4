#pragma once

#include <Configuration/ConditionKeyWrapper.h>
#include <Configuration/ConfigurationEnum.h>

#include <array>
#include <optional>

namespace velmar {

struct ActionItem;

namespace ActionItems {

/// Types of actions. Declared outside ActionItem, because its variant needs complete alternatives.
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

/// The key common to all actions; the first member of each.
struct ActionItemProtocol {
    using IsKeyGroup = void;

    ConditionKeyWrapper _condition{"Condition", optional}; ///< Absent: always run.
};

} // namespace ActionItems

// Access to an action for sources that don't need all its alternatives.

[[nodiscard]] ActionItems::TypeIdentifier typeIdentifierOf(const ActionItem &action);

[[nodiscard]] const std::optional<Expression> &conditionOf(const ActionItem &action);

/// Returns the alternative, or nullptr if the action is another one.
template <class Item>
[[nodiscard]] const Item *itemOf(const ActionItem &action);

} // namespace velmar
