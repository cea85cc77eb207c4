#pragma once

#include <Configuration/APIRequestItem.h>
#include <Configuration/ActionItemProtocol.h>
#include <Configuration/InheritableKeyWrapper.h>
#include <Configuration/VariableKeyWrapper.h>

#include <vector>

/// Actions that run something or that end something.
namespace velmar::ActionItems {

struct SaveInputs {
    static constexpr std::string_view typeName = "ActionItem.SaveInputs";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::saveInput;

    ActionItemProtocol common;
};

struct SendRequest {
    static constexpr std::string_view typeName = "ActionItem.SendRequest";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::sendRequest;

    ActionItemProtocol common;
    InheritableKeyWrapper<std::optional<APIRequestItem>> _request{"Request", required, &Library::apiRequests};
};

struct ExecuteCommand {
    static constexpr std::string_view typeName = "ActionItem.ExecuteCommand";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeCommand;

    ActionItemProtocol common;
    KeyWrapper<std::string> _command{"Command", required};
    VariableKeyWrapper<std::optional<std::string>> _variable{"Variable", optional, &nameOfVariable};
};

struct ExecuteScript {
    static constexpr std::string_view typeName = "ActionItem.ExecuteScript";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeScript;

    ActionItemProtocol common;
    KeyWrapper<std::string> _scriptPath{"ScriptPath", required};
    KeyWrapper<std::vector<std::string>> _arguments{"Arguments", optional};
    VariableKeyWrapper<std::optional<std::string>> _variable{"Variable", optional, &nameOfVariable};
};

struct ExecuteJamfPolicy {
    static constexpr std::string_view typeName = "ActionItem.ExecuteJamfPolicy";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::executeJamfPolicy;

    ActionItemProtocol common;
    KeyWrapper<std::string> _name{"Name", required};
};

struct RestartComputer {
    static constexpr std::string_view typeName = "ActionItem.RestartComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::restartComputer;

    ActionItemProtocol common;
};

struct ShutdownComputer {
    static constexpr std::string_view typeName = "ActionItem.ShutdownComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::shutdownComputer;

    ActionItemProtocol common;
};

struct AsleepComputer {
    static constexpr std::string_view typeName = "ActionItem.AsleepComputer";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::asleepComputer;

    ActionItemProtocol common;
};

struct LogoutUser {
    static constexpr std::string_view typeName = "ActionItem.LogoutUser";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::logoutUser;

    ActionItemProtocol common;
};

struct TerminateApp {
    static constexpr std::string_view typeName = "ActionItem.TerminateApp";
    static constexpr TypeIdentifier typeIdentifier = TypeIdentifier::terminateApp;

    ActionItemProtocol common;
};

} // namespace velmar::ActionItems
