#pragma once

#include <Configuration/KeyWrapper.h>

#include <string_view>

namespace velmar {

/// Options for the administrator of a session.
struct AdminSection {
    static constexpr std::string_view typeName = "AdminSection";

    KeyWrapper<bool> _isAdminModeOn{false, "IsAdminModeEnabled", required};
    KeyWrapper<bool> _isMenuBarSemiTransient{false, "IsMenuBarSemiTransient", optional};
};

} // namespace velmar
