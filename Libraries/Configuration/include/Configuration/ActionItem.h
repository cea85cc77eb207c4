#pragma once

#include <Configuration/ExecutionActionItems.h>
#include <Configuration/InteractionActionItems.h>

#include <variant>

namespace velmar {

/// One thing to do.
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

    /// The condition of whichever action it is.
    [[nodiscard]] const std::optional<Expression> &condition() const {
        return std::visit(
            [](const auto &action) -> decltype(auto) { return action.common._condition.rawValue(); }, value);
    }
};

} // namespace velmar
