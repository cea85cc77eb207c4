#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

/// A key with modifiers. docs/decisions/0016-modifier-keys.md maps the modifiers to keyboards.
struct KeyShortcut {
    char key = 0; ///< An upper case letter or a digit.
    bool command = false;
    bool control = false;
    bool option = false;
    bool shift = false;
    bool operator==(const KeyShortcut &) const = default;
};

/// An entry, or a menu if it has a submenu.
struct MenuItem {
    std::string title;
    int tag = 0; ///< Marks items for removeItems(); 0 for none.
    std::optional<KeyShortcut> shortcut;
    std::function<void()> action;
    std::vector<MenuItem> submenu;
};

/// The application's menus as a value that is read and replaced as a whole. The first menu is, by convention,
/// the application's own and ends with Quit. Main thread only.
class MainMenu {
public:
    [[nodiscard]] const std::vector<MenuItem> &items() const noexcept { return items_; }
    void setItems(std::vector<MenuItem> items);

    /// Removes all items with the tag, at any depth. The remaining items keep their order. An untagged menu
    /// stays, even if it becomes empty.
    void removeItems(int tag);

    /// Owns one observer. Destroying it ends the observation. May outlive the menu.
    using Observation = std::shared_ptr<const std::function<void()>>;

    /// Registers an observer, such as a window with a menu bar, that is called after each change.
    [[nodiscard]] Observation observe(std::function<void()> observer);

private:
    std::vector<MenuItem> items_;
    std::vector<std::weak_ptr<const std::function<void()>>> observers_;
};

} // namespace velmar
