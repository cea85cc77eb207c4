#pragma once

#include <Configuration/InheritableKeyWrapper.h>

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

struct ColorItem;

/// The navigation buttons, and the texts shown when the user can't quit yet.
struct NavigationSection {
    static constexpr std::string_view typeName = "NavigationSection";

    KeyWrapper<bool> _isHidden{false, "IsHidden", optional};
    KeyWrapper<std::optional<std::string>> _previousButtonText{"PreviousButtonText", optional};
    InheritableKeyWrapper<std::optional<ColorItem>> _previousButtonTextColor{"PreviousButtonTextColor",
                                                                             optional, &Library::colorStyles};
    KeyWrapper<std::optional<std::string>> _nextButtonText{"NextButtonText", optional};
    InheritableKeyWrapper<std::optional<ColorItem>> _nextButtonTextColor{"NextButtonTextColor", optional,
                                                                         &Library::colorStyles};
    KeyWrapper<std::optional<std::string>> _quitButtonText{"QuitButtonText", optional};
    KeyWrapper<std::optional<std::string>> _installationIncompleteQuitText{"InstallationIncompleteQuitText",
                                                                           optional};
    KeyWrapper<bool> _userCanQuitIfInstallationIsIncomplete{false, "UserCanQuitIfInstallationIsIncomplete",
                                                            optional};
    KeyWrapper<std::optional<std::string>> _mandatoryFilesMissingQuitText{"MandatoryFilesMissingQuitText",
                                                                          optional};
};

} // namespace velmar

#ifndef VELMAR_CONFIGURATION_NARROW
#include <Configuration/Whole.h>
#endif
