#pragma once

#include <Configuration/KeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// Shortcuts, scripts and options for the end of the session.
struct AppTerminationSection {
    static constexpr std::string_view typeName = "AppTerminationSection";

    KeyWrapper<bool> _isQuitShortcutEnabled{true, "QuitShortcutIsEnabled", optional};
    KeyWrapper<bool> _isForceQuitShortcutEnabled{true, "ForceQuitShortcutIsEnabled", optional};
    KeyWrapper<std::string> _forceQuitShortcutKey{"F", "ForceQuitShortcutKey", optional};
    KeyWrapper<std::optional<std::string>> _incompleteInstallationScriptPath{
        "IncompleteInstallationScriptPath", optional};
    KeyWrapper<std::optional<std::string>> _completeInstallationScriptPath{"CompleteInstallationScriptPath",
                                                                           optional};
    KeyWrapper<bool> _waitForExecutionScriptExecution{false, "WaitForTerminationScriptExecution", optional};
    KeyWrapper<bool> _executeAsRoot{false, "ExecuteAsRoot", optional};
    KeyWrapper<bool> _relaunchAtLogin{true, "RelaunchAtLogin", optional};
};

} // namespace velmar
