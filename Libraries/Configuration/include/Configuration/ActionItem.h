#pragma once

#include <Configuration/Actions/AsleepComputer.h>
#include <Configuration/Actions/CloseOpenedWindow.h>
#include <Configuration/Actions/CopyToClipboard.h>
#include <Configuration/Actions/DisplayAlert.h>
#include <Configuration/Actions/DisplayNotification.h>
#include <Configuration/Actions/ExecuteCommand.h>
#include <Configuration/Actions/ExecuteJamfPolicy.h>
#include <Configuration/Actions/ExecuteScript.h>
#include <Configuration/Actions/Log.h>
#include <Configuration/Actions/LogoutUser.h>
#include <Configuration/Actions/NavigateToSlide.h>
#include <Configuration/Actions/OpenWindow.h>
#include <Configuration/Actions/PlaySound.h>
#include <Configuration/Actions/RestartComputer.h>
#include <Configuration/Actions/SaveInputs.h>
#include <Configuration/Actions/SendRequest.h>
#include <Configuration/Actions/ShutdownComputer.h>
#include <Configuration/Actions/TerminateApp.h>
#include <Configuration/Actions/UpdateVariable.h>

#include <optional>
#include <string_view>
#include <variant>

namespace velmar {

/// An action. Include this header to visit all alternatives. The functions of ActionItemProtocol.h suffice to
/// access one of them.
struct ActionItem {
    static constexpr std::string_view typeName = "ActionItem";
    static constexpr std::string_view typeKey = "Type";

    using TypeIdentifier = ActionItems::TypeIdentifier;
    using ActionItemProtocol = ActionItems::ActionItemProtocol;
    using Log = ActionItems::Log;
    using SaveInputs = ActionItems::SaveInputs;
    using SendRequest = ActionItems::SendRequest;
    using DisplayAlert = ActionItems::DisplayAlert;
    using ExecuteCommand = ActionItems::ExecuteCommand;
    using ExecuteScript = ActionItems::ExecuteScript;
    using ExecuteJamfPolicy = ActionItems::ExecuteJamfPolicy;
    using RestartComputer = ActionItems::RestartComputer;
    using ShutdownComputer = ActionItems::ShutdownComputer;
    using AsleepComputer = ActionItems::AsleepComputer;
    using LogoutUser = ActionItems::LogoutUser;
    using PlaySound = ActionItems::PlaySound;
    using TerminateApp = ActionItems::TerminateApp;
    using CopyToClipboard = ActionItems::CopyToClipboard;
    using OpenWindow = ActionItems::OpenWindow;
    using CloseOpenedWindow = ActionItems::CloseOpenedWindow;
    using NavigateToSlide = ActionItems::NavigateToSlide;
    using DisplayNotification = ActionItems::DisplayNotification;
    using UpdateVariable = ActionItems::UpdateVariable;

    std::variant<Log, SaveInputs, SendRequest, DisplayAlert, ExecuteCommand, ExecuteScript, ExecuteJamfPolicy,
                 RestartComputer, ShutdownComputer, AsleepComputer, LogoutUser, PlaySound, TerminateApp,
                 CopyToClipboard, OpenWindow, CloseOpenedWindow, NavigateToSlide, DisplayNotification,
                 UpdateVariable>
        value;

    /// Returns the condition of the action, whatever its type.
    [[nodiscard]] const std::optional<Expression> &condition() const;
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
