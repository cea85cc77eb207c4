#pragma once

#include <Desktop/MainMenu.h>

#include <functional>
#include <vector>

namespace velmar::ApplicationMenu {

/// Tag of the entries for administrators.
inline constexpr int administratorTag = 2;

/// Functions called by the entries.
struct Actions {
    std::function<void()> quit;
    std::function<void()> reloadInterfaceSavingVariables;
    std::function<void()> reloadInterfaceResetingVariables;
};

/// Returns the menus: the application menu, whose last entry is Quit, and the administrator menu.
[[nodiscard]] std::vector<MenuItem> items(Actions actions);

} // namespace velmar::ApplicationMenu
