#pragma once

#include <Desktop/MainMenu.h>

#include <functional>
#include <vector>

namespace velmar::ApplicationMenu {

/// The tag of what is there for administrators only.
inline constexpr int administratorTag = 2;

/// What the entries do.
struct Actions {
    std::function<void()> quit;
    std::function<void()> reloadInterfaceSavingVariables;
    std::function<void()> reloadInterfaceResetingVariables;
};

/// The application's menus: its own, with Quit as the last entry, and the administrators'.
[[nodiscard]] std::vector<MenuItem> items(Actions actions);

} // namespace velmar::ApplicationMenu
