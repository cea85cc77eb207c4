#include <AppDelegate/ApplicationMenu.h>

#include <QtGlobal>

#include <QString>

#include <utility>

namespace velmar::ApplicationMenu {

std::vector<MenuItem> items(Actions actions) {
    //% "Quit Velmar"
    MenuItem quit{.title = qtTrId("menu.application.quit").toStdString(),
                  .tag = 0,
                  .shortcut = KeyShortcut{.key = 'Q', .command = true},
                  .action = std::move(actions.quit),
                  .submenu = {}};
    //% "Reload interface (saving variables)"
    MenuItem savingVariables{.title =
                                 qtTrId("menu.administrator.reload-interface-saving-variables").toStdString(),
                             .tag = administratorTag,
                             .shortcut = KeyShortcut{.key = 'R', .command = true, .shift = true},
                             .action = std::move(actions.reloadInterfaceSavingVariables),
                             .submenu = {}};
    //% "Reload interface"
    MenuItem resetingVariables{.title = qtTrId("menu.administrator.reload-interface").toStdString(),
                               .tag = administratorTag,
                               .shortcut = KeyShortcut{.key = 'R', .command = true},
                               .action = std::move(actions.reloadInterfaceResetingVariables),
                               .submenu = {}};
    std::vector<MenuItem> menus(2);
    menus[0].title = "Velmar";
    menus[0].submenu = {std::move(quit)};
    //% "Administrator"
    menus[1].title = qtTrId("menu.administrator").toStdString();
    menus[1].tag = administratorTag;
    menus[1].submenu = {std::move(savingVariables), std::move(resetingVariables)};
    return menus;
}

} // namespace velmar::ApplicationMenu
